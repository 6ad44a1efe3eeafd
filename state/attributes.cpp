// osg::StateAttribute and the four concrete attributes: Fog, ColorMask, ClipPlane, Viewport.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using SA = osg::StateAttribute;
using K = Class<SA, "osg::StateAttribute", "StateAttribute">;
constexpr Text sa_cref = "osg::StateAttribute const &";
constexpr Text state_ref = "osg::State &";

template <class T>
using NC = T *(SA::*)();
template <class T>
using CC = const T *(SA::*)() const;

}  // namespace

void add_state_attribute_rows(Table &t) {
    add(t, {
        K::fn<"cloneType", &SA::cloneType>(),
        K::fn<"clone", &SA::clone, "osg::CopyOp const &">(),
        K::fn<"isSameKindAs", &SA::isSameKindAs, "osg::Object const *">(),
        K::fn<"libraryName", &SA::libraryName>(),
        K::fn<"className", &SA::className>(),
        K::pair<"asStateAttribute", NC<SA>(&SA::asStateAttribute), CC<SA>(&SA::asStateAttribute)>(),
        K::pair<"asTexture", NC<osg::Texture>(&SA::asTexture), CC<osg::Texture>(&SA::asTexture)>(),
        K::fn<"getType", &SA::getType>(),
        K::fn<"getMember", &SA::getMember>(),
        K::fn<"getTypeMemberPair", &SA::getTypeMemberPair>(),
        K::fn<"isTextureAttribute", &SA::isTextureAttribute>(),
        K::fn<"compare", &SA::compare, sa_cref>(),
        K::op<"__lt__", &SA::operator<, sa_cref>(),
        K::op<"__eq__", &SA::operator==, sa_cref>(),
        K::op<"__ne__", &SA::operator!=, sa_cref>(),
        K::fn<"getParents", &SA::getParents>(),
        K::overload<"getParent", K::m<"getParent", pick<osg::StateSet *(SA::*)(unsigned int)>(&SA::getParent), "unsigned int">,
                    K::m<"getParent", pick<const osg::StateSet *(SA::*)(unsigned int) const>(&SA::getParent), "unsigned int">>(),
        K::fn<"getNumParents", &SA::getNumParents>(),
        K::fn<"getModeUsage", &SA::getModeUsage, "osg::StateAttribute::ModeUsage &">(),
        K::fn<"checkValidityOfAssociatedModes", &SA::checkValidityOfAssociatedModes, state_ref>(),
        K::fn<"setUpdateCallback", &SA::setUpdateCallback, "osg::StateAttributeCallback *">(),
        K::pair<"getUpdateCallback", NC<osg::StateAttributeCallback>(&SA::getUpdateCallback),
                CC<osg::StateAttributeCallback>(&SA::getUpdateCallback)>(),
        K::fn<"setEventCallback", &SA::setEventCallback, "osg::StateAttributeCallback *">(),
        K::pair<"getEventCallback", NC<osg::StateAttributeCallback>(&SA::getEventCallback),
                CC<osg::StateAttributeCallback>(&SA::getEventCallback)>(),
        K::fn<"apply", &SA::apply, state_ref>(),
        K::fn<"compileGLObjects", &SA::compileGLObjects, state_ref>(),
        K::fn<"resizeGLObjectBuffers", &SA::resizeGLObjectBuffers, "unsigned int">(),
        K::release_gl_objects(),
        register_row<ty::p_osg__StateAttribute>("StateAttribute_swigregister"),
    });
}

namespace {

// What every concrete attribute repeats under its own prefix: the object members and the
// type first, apply last. Type, member and mode usage only where the class declares them.
template <class T, Text Spelling, Text Prefix, bool Type, bool Member, bool Modes>
struct Attribute {
    using KA = Class<T, Spelling, Prefix>;
    static constexpr auto cref = cat(Spelling, Text(" const &"));

    template <class... C>
    static Row ctor() { return KA::template ctor<TakeRef::Count, C...>(); }
    // The copy constructors every attribute ends its constructor list with.
    using copy = typename KA::template with<const T &, const osg::CopyOp &>::template c<cref, "osg::CopyOp const &">;
    using copy1 = typename KA::template with<const T &>::template c<cref>;

    static void head(Table &t) {
        add(t, {
            KA::template fn<"cloneType", &T::cloneType>(),
            KA::template fn<"clone", &T::clone, "osg::CopyOp const &">(),
            KA::template fn<"isSameKindAs", &T::isSameKindAs, "osg::Object const *">(),
            KA::template fn<"libraryName", &T::libraryName>(),
            KA::template fn<"className", &T::className>(),
        });
        if constexpr (Type) add(t, {KA::template fn<"getType", &T::getType>()});
        add(t, {KA::template fn<"compare", &T::compare, sa_cref>()});
        if constexpr (Member) add(t, {KA::template fn<"getMember", &T::getMember>()});
        if constexpr (Modes) add(t, {KA::template fn<"getModeUsage", &T::getModeUsage, "osg::StateAttribute::ModeUsage &">()});
    }
    static void tail(Table &t) {
        add(t, {
            KA::template fn<"apply", &T::apply, state_ref>(),
            KA::register_hook(),
            KA::init_hook(),
        });
    }
};

using F = osg::Fog;
using AF = Attribute<F, "osg::Fog", "Fog", true, false, true>;
using KF = AF::KA;

using CM = osg::ColorMask;
using AC = Attribute<CM, "osg::ColorMask", "ColorMask", true, false, false>;
using KC = AC::KA;

using CP = osg::ClipPlane;
using AP = Attribute<CP, "osg::ClipPlane", "ClipPlane", true, true, true>;
using KP = AP::KA;

using VP = osg::Viewport;
using AV = Attribute<VP, "osg::Viewport", "Viewport", true, false, false>;
using KV = AV::KA;
using V = VP::value_type;
constexpr Text vt = "osg::Viewport::value_type";
using Ref = V &(VP::*)();
using Val = V (VP::*)() const;

}  // namespace

void add_color_mask_rows(Table &t) {
    add(t, {AC::ctor<KC::with<>::c<>, KC::with<bool, bool, bool, bool>::c<"bool", "bool", "bool", "bool">, AC::copy, AC::copy1>()});
    AC::head(t);
    add(t, {
        KC::fn<"setMask", &CM::setMask, "bool", "bool", "bool", "bool">(),
        KC::fn<"setRedMask", &CM::setRedMask, "bool">(),
        KC::fn<"getRedMask", &CM::getRedMask>(),
        KC::fn<"setGreenMask", &CM::setGreenMask, "bool">(),
        KC::fn<"getGreenMask", &CM::getGreenMask>(),
        KC::fn<"setBlueMask", &CM::setBlueMask, "bool">(),
        KC::fn<"getBlueMask", &CM::getBlueMask>(),
        KC::fn<"setAlphaMask", &CM::setAlphaMask, "bool">(),
        KC::fn<"getAlphaMask", &CM::getAlphaMask>(),
    });
    AC::tail(t);
}

void add_viewport_rows(Table &t) {
    add(t, {AV::ctor<KV::with<>::c<>, KV::with<V, V, V, V>::c<vt, vt, vt, vt>, AV::copy, AV::copy1>()});
    AV::head(t);
    add(t, {
        KV::fn<"setViewport", &VP::setViewport, vt, vt, vt, vt>(),
        KV::pair<"x", Ref(&VP::x), Val(&VP::x)>(),
        KV::pair<"y", Ref(&VP::y), Val(&VP::y)>(),
        KV::pair<"width", Ref(&VP::width), Val(&VP::width)>(),
        KV::pair<"height", Ref(&VP::height), Val(&VP::height)>(),
        KV::fn<"valid", &VP::valid>(),
        KV::fn<"aspectRatio", &VP::aspectRatio>(),
        KV::fn<"computeWindowMatrix", &VP::computeWindowMatrix>(),
    });
    AV::tail(t);
}

void add_clip_plane_rows(Table &t) {
    add(t, {AP::ctor<KP::with<>::c<>, KP::with<unsigned int>::c<"unsigned int">,
                     KP::with<unsigned int, const osg::Vec4d &>::c<"unsigned int", "osg::Vec4d const &">,
                     KP::with<unsigned int, const osg::Plane &>::c<"unsigned int", "osg::Plane const &">,
                     KP::with<unsigned int, double, double, double, double>::c<"unsigned int", "double", "double", "double", "double">,
                     AP::copy, AP::copy1>()});
    AP::head(t);
    add(t, {
        KP::overload<"setClipPlane", KP::m<"setClipPlane", pick<void (CP::*)(const osg::Plane &)>(&CP::setClipPlane), "osg::Plane const &">,
                     KP::m<"setClipPlane", pick<void (CP::*)(double, double, double, double)>(&CP::setClipPlane),
                           "double", "double", "double", "double">,
                     KP::m<"setClipPlane", pick<void (CP::*)(const osg::Vec4d &)>(&CP::setClipPlane), "osg::Vec4d const &">>(),
        KP::fn<"getClipPlane", &CP::getClipPlane>(),
        KP::fn<"setClipPlaneNum", &CP::setClipPlaneNum, "unsigned int">(),
        KP::fn<"getClipPlaneNum", &CP::getClipPlaneNum>(),
    });
    AP::tail(t);
}

void add_fog_rows(Table &t) {
    add(t, {AF::ctor<KF::with<>::c<>, AF::copy, AF::copy1>()});
    AF::head(t);
    add(t, {
        KF::fn<"setMode", &F::setMode, "osg::Fog::Mode">(),
        KF::fn<"getMode", &F::getMode>(),
        KF::fn<"setDensity", &F::setDensity, "float">(),
        KF::fn<"getDensity", &F::getDensity>(),
        KF::fn<"setStart", &F::setStart, "float">(),
        KF::fn<"getStart", &F::getStart>(),
        KF::fn<"setEnd", &F::setEnd, "float">(),
        KF::fn<"getEnd", &F::getEnd>(),
        KF::fn<"setColor", &F::setColor, "osg::Vec4 const &">(),
        KF::fn<"getColor", &F::getColor>(),
        KF::fn<"setUseRadialFog", &F::setUseRadialFog, "bool">(),
        KF::fn<"getUseRadialFog", &F::getUseRadialFog>(),
        KF::fn<"setFogCoordinateSource", &F::setFogCoordinateSource, "GLint">(),
        KF::fn<"getFogCoordinateSource", &F::getFogCoordinateSource>(),
    });
    AF::tail(t);
}
