// osg::Material, osg::Light and osg::LightSource.
#include "draw/bind.h"
#include "wrap/object_class.h"

using namespace wrap;

namespace {

constexpr Text vec4 = "osg::Vec4 const &";
constexpr Text f = "float";
constexpr Text sa_cref = "osg::StateAttribute const &";

using M = osg::Material;
using KM = ObjectClass<M, "osg::Material", "Material">;
using Face = M::Face;
constexpr Text face = "osg::Material::Face";

// A material's color per face: set, get, and whether front and back are equal.
template <Text Set, Text Get, Text Both, void (M::*S)(Face, const osg::Vec4 &), const osg::Vec4 &(M::*G)(Face) const,
          bool (M::*B)() const>
void color_rows(Table &t) {
    add(t, {KM::fn<Set, S, face, vec4>(), KM::fn<Get, G, face>(), KM::fn<Both, B>()});
}

using L = osg::Light;
using KL = ObjectClass<L, "osg::Light", "Light">;

template <Text Set, Text Get, class V, Text Spelling, void (L::*S)(V), V (L::*G)() const>
void light_value(Table &t) {
    add(t, {KL::fn<Set, S, Spelling>(), KL::fn<Get, G>()});
}

using LS = osg::LightSource;
using KS = ObjectClass<LS, "osg::LightSource", "LightSource">;
constexpr auto local_modes = [](LS *s, auto... a) { s->setLocalStateSetModes(a...); };

}  // namespace

void add_lighting_rows(Table &t, Constants &c) {
    t.push_back(KM::ctor<TakeRef::Count>());
    KM::meta(t);
    add(t, {
        KM::fn<"getType", &M::getType>(),
        KM::fn<"compare", &M::compare, sa_cref>(),
        KM::fn<"setColorMode", &M::setColorMode, "osg::Material::ColorMode">(),
        KM::fn<"getColorMode", &M::getColorMode>(),
    });
    color_rows<"setAmbient", "getAmbient", "getAmbientFrontAndBack", &M::setAmbient, &M::getAmbient,
           &M::getAmbientFrontAndBack>(t);
    color_rows<"setDiffuse", "getDiffuse", "getDiffuseFrontAndBack", &M::setDiffuse, &M::getDiffuse,
           &M::getDiffuseFrontAndBack>(t);
    color_rows<"setSpecular", "getSpecular", "getSpecularFrontAndBack", &M::setSpecular, &M::getSpecular,
           &M::getSpecularFrontAndBack>(t);
    color_rows<"setEmission", "getEmission", "getEmissionFrontAndBack", &M::setEmission, &M::getEmission,
           &M::getEmissionFrontAndBack>(t);
    add(t, {
        KM::fn<"setShininess", &M::setShininess, face, f>(),
        KM::fn<"getShininess", &M::getShininess, face>(),
        KM::fn<"getShininessFrontAndBack", &M::getShininessFrontAndBack>(),
        KM::fn<"setTransparency", &M::setTransparency, face, f>(),
        KM::fn<"setAlpha", &M::setAlpha, face, f>(),
    });
    KM::hooks(t);
    c.insert(c.end(), {
        constant("Material_FRONT", M::FRONT), constant("Material_BACK", M::BACK),
        constant("Material_FRONT_AND_BACK", M::FRONT_AND_BACK), constant("Material_AMBIENT", M::AMBIENT),
        constant("Material_DIFFUSE", M::DIFFUSE), constant("Material_SPECULAR", M::SPECULAR),
        constant("Material_EMISSION", M::EMISSION), constant("Material_AMBIENT_AND_DIFFUSE", M::AMBIENT_AND_DIFFUSE),
        constant("Material_OFF", M::OFF),
    });

    t.push_back(KL::ctor<TakeRef::Count, KL::with<unsigned int>::c<"unsigned int">>());
    KL::meta(t);
    add(t, {
        KL::fn<"getType", &L::getType>(),
        KL::fn<"compare", &L::compare, sa_cref>(),
        KL::fn<"getMember", &L::getMember>(),
    });
    light_value<"setLightNum", "getLightNum", int, "int", &L::setLightNum, &L::getLightNum>(t);
    light_value<"setAmbient", "getAmbient", const osg::Vec4 &, vec4, &L::setAmbient, &L::getAmbient>(t);
    light_value<"setDiffuse", "getDiffuse", const osg::Vec4 &, vec4, &L::setDiffuse, &L::getDiffuse>(t);
    light_value<"setSpecular", "getSpecular", const osg::Vec4 &, vec4, &L::setSpecular, &L::getSpecular>(t);
    light_value<"setPosition", "getPosition", const osg::Vec4 &, vec4, &L::setPosition, &L::getPosition>(t);
    light_value<"setDirection", "getDirection", const osg::Vec3 &, "osg::Vec3 const &", &L::setDirection,
                &L::getDirection>(t);
    light_value<"setConstantAttenuation", "getConstantAttenuation", float, f, &L::setConstantAttenuation,
                &L::getConstantAttenuation>(t);
    light_value<"setLinearAttenuation", "getLinearAttenuation", float, f, &L::setLinearAttenuation,
                &L::getLinearAttenuation>(t);
    light_value<"setQuadraticAttenuation", "getQuadraticAttenuation", float, f, &L::setQuadraticAttenuation,
                &L::getQuadraticAttenuation>(t);
    light_value<"setSpotExponent", "getSpotExponent", float, f, &L::setSpotExponent, &L::getSpotExponent>(t);
    light_value<"setSpotCutoff", "getSpotCutoff", float, f, &L::setSpotCutoff, &L::getSpotCutoff>(t);
    KL::hooks(t);

    // A light source is a group: its new object's reference goes through the SDK's library.
    t.push_back(KS::ctor<TakeRef::Group>());
    KS::meta(t);
    add(t, {
        KS::fn<"accept", [](LS *self, osg::NodeVisitor &nv) { self->accept(nv); }, "osg::NodeVisitor &">(),
        KS::fn<"setReferenceFrame", &LS::setReferenceFrame, "osg::LightSource::ReferenceFrame">(),
        KS::fn<"getReferenceFrame", &LS::getReferenceFrame>(),
        KS::fn<"setLight", &LS::setLight, "osg::Light *">(),
        KS::pair<"getLight", pick<L *(LS::*)()>(&LS::getLight), pick<const L *(LS::*)() const>(&LS::getLight)>(),
        KS::fn<"setStateSetModes", &LS::setStateSetModes, "osg::StateSet &", "osg::StateAttribute::GLModeValue">(),
        KS::overload<"setLocalStateSetModes", KS::forms<"setLocalStateSetModes", local_modes, 0,
                                                        List<LS *, osg::StateAttribute::GLModeValue>,
                                                        "osg::StateAttribute::GLModeValue">>(),
        KS::fn<"setThreadSafeRefUnref", &LS::setThreadSafeRefUnref, "bool">(),
    });
    KS::hooks(t);
    c.insert(c.end(), {constant("LightSource_RELATIVE_RF", LS::RELATIVE_RF),
                       constant("LightSource_ABSOLUTE_RF", LS::ABSOLUTE_RF)});
}
