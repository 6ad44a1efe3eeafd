// The camera manipulators: osgGA::CameraManipulator (the home position, the matrix it gives
// the camera), osgGA::StandardManipulator, osgGA::OrbitManipulator and the trackball that
// osgViewer::Viewer::run installs when a script sets none.
#include "viewer/bind.h"
#include "wrap/object_class.h"

using namespace wrap;

namespace {

constexpr Text b = "bool";
constexpr Text d = "double";
constexpr Text i = "int";
constexpr Text v3 = "osg::Vec3d const &";
constexpr Text v3ref = "osg::Vec3d &";
constexpr Text quat = "osg::Quat const &";
constexpr Text matrix = "osg::Matrixd const &";

using M = osgGA::CameraManipulator;
using KM = Class<M, "osgGA::CameraManipulator", "CameraManipulator">;
using V3 = const osg::Vec3d &;

constexpr auto set_home = [](M *m, auto... a) { m->setHomePosition(a...); };
constexpr auto compute_home = [](M *m, auto... a) { m->computeHomePosition(a...); };

using S = osgGA::StandardManipulator;
using KS = Class<S, "osgGA::StandardManipulator", "StandardManipulator">;

using O = osgGA::OrbitManipulator;
using KO = ObjectClass<O, "osgGA::OrbitManipulator", "OrbitManipulator">;

constexpr auto minimum_distance = [](O *o, auto... a) { o->setMinimumDistance(a...); };

using T = osgGA::TrackballManipulator;
using KT = ObjectClass<T, "osgGA::TrackballManipulator", "TrackballManipulator">;

}  // namespace

void add_manipulator_rows(Table &t, Constants &c) {
    // Abstract, as is StandardManipulator: no constructor, so no swiginit either.
    add(t, {
        KM::fn<"setByMatrix", &M::setByMatrix, matrix>(),
        KM::fn<"setByInverseMatrix", &M::setByInverseMatrix, matrix>(),
        KM::fn<"getMatrix", &M::getMatrix>(),
        KM::fn<"getInverseMatrix", &M::getInverseMatrix>(),
        KM::fn<"updateCamera", &M::updateCamera, "osg::Camera &">(),
        KM::fn<"setIntersectTraversalMask", &M::setIntersectTraversalMask, "unsigned int">(),
        KM::fn<"getIntersectTraversalMask", &M::getIntersectTraversalMask>(),
        KM::fn<"setNode", &M::setNode, "osg::Node *">(),
        KM::pair<"getNode", pick<osg::Node *(M::*)()>(&M::getNode), pick<const osg::Node *(M::*)() const>(&M::getNode)>(),
        KM::overload<"setHomePosition", KM::forms<"setHomePosition", set_home, 3, List<M *, V3, V3, V3, bool>, v3, v3, v3, b>>(),
        KM::fn<"getHomePosition", &M::getHomePosition, v3ref, v3ref, v3ref>(),
        KM::fn<"setAutoComputeHomePosition", &M::setAutoComputeHomePosition, b>(),
        KM::fn<"getAutoComputeHomePosition", &M::getAutoComputeHomePosition>(),
        KM::overload<"computeHomePosition", KM::forms<"computeHomePosition", compute_home, 0,
                                                      List<M *, const osg::Camera *, bool>, "osg::Camera const *", b>>(),
        KM::fn<"finishAnimation", &M::finishAnimation>(),
        KM::fn<"home", pick<void (M::*)(double)>(&M::home), d>(),
        KM::register_hook(),
    });

    add(t, {
        KS::overload<"setTransformation",
                     KS::m<"setTransformation", pick<void (S::*)(V3, const osg::Quat &)>(&S::setTransformation), v3, quat>,
                     KS::m<"setTransformation", pick<void (S::*)(V3, V3, V3)>(&S::setTransformation), v3, v3, v3>>(),
        // Eye, center and up first: the package's form without out-parameters gives those.
        KS::overload<"getTransformation",
                     KS::m<"getTransformation", pick<void (S::*)(osg::Vec3d &, osg::Vec3d &, osg::Vec3d &) const>(
                                                    &S::getTransformation), v3ref, v3ref, v3ref>,
                     KS::m<"getTransformation", pick<void (S::*)(osg::Vec3d &, osg::Quat &) const>(&S::getTransformation),
                           v3ref, "osg::Quat &">>(),
        KS::fn<"setVerticalAxisFixed", &S::setVerticalAxisFixed, b>(),
        KS::fn<"getVerticalAxisFixed", &S::getVerticalAxisFixed>(),
        KS::fn<"setAllowThrow", &S::setAllowThrow, b>(),
        KS::fn<"getAllowThrow", &S::getAllowThrow>(),
        KS::fn<"setAnimationTime", &S::setAnimationTime, "double const">(),
        KS::fn<"getAnimationTime", &S::getAnimationTime>(),
        KS::fn<"isAnimating", &S::isAnimating>(),
        KS::register_hook(),
    });
    c.insert(c.end(), {
        constant("StandardManipulator_UPDATE_MODEL_SIZE", S::UPDATE_MODEL_SIZE),
        constant("StandardManipulator_COMPUTE_HOME_USING_BBOX", S::COMPUTE_HOME_USING_BBOX),
        constant("StandardManipulator_PROCESS_MOUSE_WHEEL", S::PROCESS_MOUSE_WHEEL),
        constant("StandardManipulator_SET_CENTER_ON_WHEEL_FORWARD_MOVEMENT", S::SET_CENTER_ON_WHEEL_FORWARD_MOVEMENT),
        constant("StandardManipulator_DEFAULT_SETTINGS", S::DEFAULT_SETTINGS),
    });

    t.push_back(KO::ctor<TakeRef::Count, KO::with<int>::c<i>>());
    KO::meta(t);
    add(t, {
        KO::fn<"setCenter", &O::setCenter, v3>(),
        KO::fn<"getCenter", &O::getCenter>(),
        KO::fn<"setRotation", &O::setRotation, quat>(),
        KO::fn<"getRotation", &O::getRotation>(),
        KO::fn<"setDistance", &O::setDistance, d>(),
        KO::fn<"getDistance", &O::getDistance>(),
        KO::fn<"setHeading", &O::setHeading, d>(),
        KO::fn<"getHeading", &O::getHeading>(),
        KO::fn<"setElevation", &O::setElevation, d>(),
        KO::fn<"getElevation", &O::getElevation>(),
        // A number by const reference crosses as a number, as SWIG passes one.
        KO::fn<"setTrackballSize", [](O *o, double size) { o->setTrackballSize(size); }, "double const &">(),
        KO::fn<"getTrackballSize", &O::getTrackballSize>(),
        KO::fn<"setWheelZoomFactor", &O::setWheelZoomFactor, d>(),
        KO::fn<"getWheelZoomFactor", &O::getWheelZoomFactor>(),
        KO::overload<"setMinimumDistance", KO::forms<"setMinimumDistance", minimum_distance, 1,
                                                     List<O *, double, bool>, "double const &", b>>(),
        // The short form: its out-parameter is a bool * the package has no cell for.
        KO::fn<"getMinimumDistance", [](const O *o) { return o->getMinimumDistance(); }>(),
    });
    KO::hooks(t);

    t.push_back(KT::ctor<TakeRef::Count, KT::with<int>::c<i>>());
    KT::meta(t);
    KT::hooks(t);
}
