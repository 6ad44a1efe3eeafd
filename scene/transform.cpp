// The transform nodes and the free functions that fold a node path into a matrix.
#include "scene/node_class.h"

using namespace wrap;

namespace {

template <class T, class C>
using NC = T *(C::*)();
template <class T, class C>
using CC = const T *(C::*)() const;

using M = osg::Matrix;
using Path = osg::NodePath;
constexpr Text path = "osg::NodePath const &";
constexpr Text mref = "osg::Matrix const &";

// The short forms pass the library's default: cameras are ignored.
template <Text Name, Text Qualified, M (*F)(const Path &, bool)>
constexpr Row fold() {
    return overload<Name, fc<Qualified, F, path, "bool">,
                    fc<Qualified, [](const Path &p) { return F(p, true); }, path>>();
}
template <Text Name, Text Qualified, M (*F)(const M &, const Path &, bool)>
constexpr Row fold_eye() {
    return overload<Name, fc<Qualified, F, mref, path, "bool">,
                    fc<Qualified, [](const M &m, const Path &p) { return F(m, p, true); }, mref, path>>();
}

using T = osg::Transform;
using KT = scene::NodeClass<T, "osg::Transform", "Transform">;

}  // namespace

void add_transform_rows(Table &t) {
    add(t, {
        fold<"computeLocalToWorld", "osg::computeLocalToWorld", osg::computeLocalToWorld>(),
        fold<"computeWorldToLocal", "osg::computeWorldToLocal", osg::computeWorldToLocal>(),
        fold_eye<"computeLocalToEye", "osg::computeLocalToEye", osg::computeLocalToEye>(),
        fold_eye<"computeEyeToLocal", "osg::computeEyeToLocal", osg::computeEyeToLocal>(),
        KT::ctor<TakeRef::Group>(),
    });
    KT::meta(t);
    add(t, {
        KT::as_self<NC<T, T>(&T::asTransform), CC<T, T>(&T::asTransform)>(),
        KT::fn<"asMatrixTransform", NC<osg::MatrixTransform, T>(&T::asMatrixTransform)>(),
        KT::fn<"asPositionAttitudeTransform", NC<osg::PositionAttitudeTransform, T>(&T::asPositionAttitudeTransform)>(),
        KT::fn<"asAutoTransform", NC<osg::AutoTransform, T>(&T::asAutoTransform)>(),
        KT::fn<"setReferenceFrame", &T::setReferenceFrame, "osg::Transform::ReferenceFrame">(),
        KT::fn<"getReferenceFrame", &T::getReferenceFrame>(),
    });
    KT::matrices(t);
    KT::hooks(t);
}

namespace {

using MT = osg::MatrixTransform;
using KM = scene::NodeClass<MT, "osg::MatrixTransform", "MatrixTransform">;

}  // namespace

void add_matrix_transform_rows(Table &t) {
    t.push_back(KM::ctor<TakeRef::Group, KM::with<const M &>::c<mref>>());
    KM::meta(t);
    add(t, {
        KM::as_self<NC<MT, MT>(&MT::asMatrixTransform), CC<MT, MT>(&MT::asMatrixTransform)>(),
        KM::fn<"setMatrix", &MT::setMatrix, mref>(),
        KM::fn<"getMatrix", &MT::getMatrix>(),
        KM::fn<"preMult", &MT::preMult, mref>(),
        KM::fn<"postMult", &MT::postMult, mref>(),
        KM::fn<"getInverseMatrix", &MT::getInverseMatrix>(),
    });
    KM::matrices(t);
    KM::hooks(t);
}

namespace {

using P = osg::PositionAttitudeTransform;
using KP = scene::NodeClass<P, "osg::PositionAttitudeTransform", "PositionAttitudeTransform">;
constexpr Text v3d = "osg::Vec3d const &";

}  // namespace

void add_position_attitude_transform_rows(Table &t) {
    t.push_back(KP::ctor<TakeRef::Group>());
    KP::meta(t);
    add(t, {
        KP::as_self<NC<P, P>(&P::asPositionAttitudeTransform), CC<P, P>(&P::asPositionAttitudeTransform)>(),
        KP::fn<"setPosition", &P::setPosition, v3d>(),
        KP::fn<"getPosition", &P::getPosition>(),
        KP::fn<"setAttitude", &P::setAttitude, "osg::Quat const &">(),
        KP::fn<"getAttitude", &P::getAttitude>(),
        KP::fn<"setScale", &P::setScale, v3d>(),
        KP::fn<"getScale", &P::getScale>(),
        KP::fn<"setPivotPoint", &P::setPivotPoint, v3d>(),
        KP::fn<"getPivotPoint", &P::getPivotPoint>(),
    });
    KP::matrices(t);
    KP::hooks(t);
}

namespace {

using A = osg::AutoTransform;
using KA = scene::NodeClass<A, "osg::AutoTransform", "AutoTransform">;

}  // namespace

void add_auto_transform_rows(Table &t) {
    t.push_back(KA::ctor<TakeRef::Group>());
    KA::meta(t, false);  // the class has no accept of its own
    add(t, {
        KA::as_self<NC<A, A>(&A::asAutoTransform), CC<A, A>(&A::asAutoTransform)>(),
        KA::fn<"setPosition", &A::setPosition, v3d>(),
        KA::fn<"getPosition", &A::getPosition>(),
        KA::fn<"setRotation", &A::setRotation, "osg::Quat const &">(),
        KA::fn<"getRotation", &A::getRotation>(),
        KA::overload<"setScale", KA::m<"setScale", pick<void (A::*)(double)>(&A::setScale), "double">,
                     KA::m<"setScale", pick<void (A::*)(const osg::Vec3d &)>(&A::setScale), v3d>>(),
        KA::fn<"getScale", &A::getScale>(),
        KA::fn<"setMinimumScale", &A::setMinimumScale, "double">(),
        KA::fn<"getMinimumScale", &A::getMinimumScale>(),
        KA::fn<"setMaximumScale", &A::setMaximumScale, "double">(),
        KA::fn<"getMaximumScale", &A::getMaximumScale>(),
        KA::fn<"setPivotPoint", &A::setPivotPoint, v3d>(),
        KA::fn<"getPivotPoint", &A::getPivotPoint>(),
        KA::fn<"setAutoUpdateEyeMovementTolerance", &A::setAutoUpdateEyeMovementTolerance, "float">(),
        KA::fn<"getAutoUpdateEyeMovementTolerance", &A::getAutoUpdateEyeMovementTolerance>(),
        KA::fn<"setAutoRotateMode", &A::setAutoRotateMode, "osg::AutoTransform::AutoRotateMode">(),
        KA::fn<"getAutoRotateMode", &A::getAutoRotateMode>(),
        KA::fn<"setAxis", &A::setAxis, "osg::Vec3 const &">(),
        KA::fn<"getAxis", &A::getAxis>(),
        KA::fn<"setNormal", &A::setNormal, "osg::Vec3 const &">(),
        KA::fn<"getNormal", &A::getNormal>(),
        KA::fn<"setAutoScaleToScreen", &A::setAutoScaleToScreen, "bool">(),
        KA::fn<"getAutoScaleToScreen", &A::getAutoScaleToScreen>(),
        KA::fn<"setAutoScaleTransitionWidthRatio", &A::setAutoScaleTransitionWidthRatio, "float">(),
        KA::fn<"getAutoScaleTransitionWidthRatio", &A::getAutoScaleTransitionWidthRatio>(),
    });
    KA::matrices(t);
    KA::hooks(t);
}
