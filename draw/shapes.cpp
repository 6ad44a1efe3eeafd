// osg::Shape and its shapes, osg::TessellationHints and osg::ShapeDrawable.
#include "draw/bind.h"
#include "wrap/object_class.h"

using namespace wrap;

namespace {

constexpr Text vec3 = "osg::Vec3 const &";
constexpr Text f = "float";

template <class T>
concept HasHalfLengths = requires { &T::getHalfLengths; };
template <class T>
concept HasRadius = requires { &T::getRadius; };
template <class T>
concept HasHeight = requires { &T::getHeight; };
template <class T>
concept HasRotation = requires { &T::getRotation; };
template <class T>
concept HasBaseOffset = requires { &T::getBaseOffset; };

// One table for the five shapes: the rows of the dimensions a shape declares, in its header's
// order (center, then half lengths or radius, height, rotation). More... are the shape's own
// constructors.
template <class T, Text Spelling, Text Prefix, class... More>
void add_shape(Table &t) {
    using K = ObjectClass<T, Spelling, Prefix>;
    t.push_back(K::template ctor<TakeRef::Count, More...>());
    K::meta(t);
    t.push_back(K::template fn<"valid", &T::valid>());
    if constexpr (HasHalfLengths<T>) {
        t.push_back(K::template fn<"set", &T::set, vec3, vec3>());
    } else if constexpr (HasHeight<T>) {
        t.push_back(K::template fn<"set", &T::set, vec3, f, f>());
    } else {
        t.push_back(K::template fn<"set", &T::set, vec3, f>());
    }
    add(t, {K::template fn<"setCenter", &T::setCenter, vec3>(), K::template fn<"getCenter", &T::getCenter>()});
    if constexpr (HasHalfLengths<T>)
        add(t, {K::template fn<"setHalfLengths", &T::setHalfLengths, vec3>(),
                K::template fn<"getHalfLengths", &T::getHalfLengths>()});
    if constexpr (HasRadius<T>)
        add(t, {K::template fn<"setRadius", &T::setRadius, f>(), K::template fn<"getRadius", &T::getRadius>()});
    if constexpr (HasHeight<T>)
        add(t, {K::template fn<"setHeight", &T::setHeight, f>(), K::template fn<"getHeight", &T::getHeight>()});
    if constexpr (HasRotation<T>)
        add(t, {
            K::template fn<"setRotation", &T::setRotation, "osg::Quat const &">(),
            K::template fn<"getRotation", &T::getRotation>(),
            K::template fn<"computeRotationMatrix", &T::computeRotationMatrix>(),
            K::template fn<"zeroRotation", &T::zeroRotation>(),
        });
    if constexpr (HasBaseOffset<T>)
        add(t, {K::template fn<"getBaseOffsetFactor", &T::getBaseOffsetFactor>(),
                K::template fn<"getBaseOffset", &T::getBaseOffset>()});
    K::hooks(t);
}

using V3 = const osg::Vec3 &;

template <class T, Text Spelling, Text Prefix>
using center_radius_height =
    typename ObjectClass<T, Spelling, Prefix>::template with<V3, float, float>::template c<vec3, f, f>;

using TH = osg::TessellationHints;
using KT = ObjectClass<TH, "osg::TessellationHints", "TessellationHints">;

template <Text Set, Text Get, void (TH::*S)(bool), bool (TH::*G)() const>
void flag(Table &t) {
    add(t, {KT::fn<Set, S, "bool">(), KT::fn<Get, G>()});
}

using SD = osg::ShapeDrawable;
using KS = ObjectClass<SD, "osg::ShapeDrawable", "ShapeDrawable">;
using NH = TH *(SD::*)();
using CH = const TH *(SD::*)() const;

}  // namespace

void add_shape_rows(Table &t, Constants &c) {
    // The abstract base: no constructor, so no swiginit either.
    using KB = ObjectClass<osg::Shape, "osg::Shape", "Shape">;
    KB::meta(t);
    t.push_back(KB::register_hook());

    using KX = ObjectClass<osg::Box, "osg::Box", "Box">;
    add_shape<osg::Box, "osg::Box", "Box", KX::with<V3, float>::c<vec3, f>,
              KX::with<V3, float, float, float>::c<vec3, f, f, f>>(t);
    add_shape<osg::Sphere, "osg::Sphere", "Sphere",
              ObjectClass<osg::Sphere, "osg::Sphere", "Sphere">::with<V3, float>::c<vec3, f>>(t);
    add_shape<osg::Cone, "osg::Cone", "Cone", center_radius_height<osg::Cone, "osg::Cone", "Cone">>(t);
    add_shape<osg::Cylinder, "osg::Cylinder", "Cylinder",
              center_radius_height<osg::Cylinder, "osg::Cylinder", "Cylinder">>(t);
    add_shape<osg::Capsule, "osg::Capsule", "Capsule", center_radius_height<osg::Capsule, "osg::Capsule", "Capsule">>(t);

    t.push_back(KT::ctor<TakeRef::Count>());
    KT::meta(t);
    add(t, {
        KT::fn<"setTessellationMode", &TH::setTessellationMode, "osg::TessellationHints::TessellationMode">(),
        KT::fn<"getTessellationMode", &TH::getTessellationMode>(),
        KT::fn<"setDetailRatio", &TH::setDetailRatio, f>(),
        KT::fn<"getDetailRatio", &TH::getDetailRatio>(),
        KT::fn<"setTargetNumFaces", &TH::setTargetNumFaces, "unsigned int">(),
        KT::fn<"getTargetNumFaces", &TH::getTargetNumFaces>(),
    });
    flag<"setCreateFrontFace", "getCreateFrontFace", &TH::setCreateFrontFace, &TH::getCreateFrontFace>(t);
    flag<"setCreateBackFace", "getCreateBackFace", &TH::setCreateBackFace, &TH::getCreateBackFace>(t);
    flag<"setCreateNormals", "getCreateNormals", &TH::setCreateNormals, &TH::getCreateNormals>(t);
    flag<"setCreateTextureCoords", "getCreateTextureCoords", &TH::setCreateTextureCoords, &TH::getCreateTextureCoords>(t);
    flag<"setCreateTop", "getCreateTop", &TH::setCreateTop, &TH::getCreateTop>(t);
    flag<"setCreateBody", "getCreateBody", &TH::setCreateBody, &TH::getCreateBody>(t);
    flag<"setCreateBottom", "getCreateBottom", &TH::setCreateBottom, &TH::getCreateBottom>(t);
    KT::hooks(t);
    c.insert(c.end(), {constant("TessellationHints_USE_SHAPE_DEFAULTS", TH::USE_SHAPE_DEFAULTS),
                       constant("TessellationHints_USE_TARGET_NUM_FACES", TH::USE_TARGET_NUM_FACES)});

    // getShape is osg::Drawable's, bound with it; ShapeDrawable's own members follow.
    t.push_back(KS::ctor<TakeRef::Count, KS::with<osg::Shape *, TH *>::c<"osg::Shape *", "osg::TessellationHints *">,
                         KS::with<osg::Shape *>::c<"osg::Shape *">>());
    KS::meta(t);
    add(t, {
        KS::fn<"setShape", &SD::setShape, "osg::Shape *">(),
        KS::fn<"setColor", &SD::setColor, "osg::Vec4 const &">(),
        KS::fn<"getColor", &SD::getColor>(),
        KS::fn<"setTessellationHints", &SD::setTessellationHints, "osg::TessellationHints *">(),
        KS::pair<"getTessellationHints", NH(&SD::getTessellationHints), CH(&SD::getTessellationHints)>(),
        KS::fn<"build", &SD::build>(),
    });
    KS::hooks(t);
}
