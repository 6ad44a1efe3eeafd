// osg::StateSet. Modes and uniform types cross as opaque handles, strings as std::string
// proxies, and every container as a proxy aliasing the state set's own.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using S = osg::StateSet;
using SA = osg::StateAttribute;
using U = osg::Uniform;
using K = Class<S, "osg::StateSet", "StateSet">;
using Type = SA::Type;
using Value = unsigned int;  // GLModeValue and OverrideValue

constexpr auto mode = handle<ty::p_GLenum>("osg::StateAttribute::GLMode");
constexpr auto uniform_type = handle<ty::p_osg__Uniform__Type>("osg::Uniform::Type");
constexpr Text ui = "unsigned int";
constexpr Text type = "osg::StateAttribute::Type";
constexpr Text attr = "osg::StateAttribute *";
constexpr Text mode_value = "osg::StateAttribute::GLModeValue";
constexpr Text override_value = "osg::StateAttribute::OverrideValue";
constexpr Text str = "std::string const &";
constexpr Text self_cref = "osg::StateSet const &";
constexpr Text state_ref = "osg::State &";

// Const/non-const member pairs returning R * or R &.
template <class R, class... A>
using NC = R *(S::*)(A...);
template <class R, class... A>
using CC = const R *(S::*)(A...) const;
template <class R>
using NR = R &(S::*)();
template <class R>
using CR = const R &(S::*)() const;

}  // namespace

void add_state_set_rows(Table &t) {
    add(t, {
        K::ctor<TakeRef::Count, K::with<>::c<>, K::with<const S &, const osg::CopyOp &>::c<self_cref, "osg::CopyOp const &">,
                K::with<const S &>::c<self_cref>>(),
        K::fn<"cloneType", &S::cloneType>(),
        K::fn<"clone", &S::clone, "osg::CopyOp const &">(),
        K::fn<"isSameKindAs", &S::isSameKindAs, "osg::Object const *">(),
        K::fn<"libraryName", &S::libraryName>(),
        K::fn<"className", &S::className>(),
        K::overload<"compare", K::m<"compare", &S::compare, self_cref, "bool">,
                    K::m<"compare", [](const S *s, const S &rhs) { return s->compare(rhs); }, self_cref>>(),
        K::op<"__lt__", &S::operator<, self_cref>(),
        K::op<"__eq__", &S::operator==, self_cref>(),
        K::op<"__ne__", &S::operator!=, self_cref>(),
        K::pair<"asStateSet", pick<S *(S::*)()>(&S::asStateSet), pick<const S *(S::*)() const>(&S::asStateSet)>(),
        // The const form lists first and takes every state set: the copying form is never reached.
        K::overload<"getParents", K::m<"getParents", pick<const S::ParentList &(S::*)() const>(&S::getParents)>,
                    K::m<"getParents", pick<S::ParentList (S::*)()>(&S::getParents)>>(),
        K::overload<"getParent", K::m<"getParent", pick<osg::Node *(S::*)(unsigned)>(&S::getParent), ui>,
                    K::m<"getParent", pick<const osg::Node *(S::*)(unsigned) const>(&S::getParent), ui>>(),
        K::fn<"getNumParents", &S::getNumParents>(),
        K::fn<"computeDataVariance", &S::computeDataVariance>(),
        K::fn<"setGlobalDefaults", &S::setGlobalDefaults>(),
        K::fn<"clear", &S::clear>(),
        K::fn<"merge", &S::merge, self_cref>(),
        K::fn<"setMode", pick<void (S::*)(SA::GLMode, Value)>(&S::setMode), mode, mode_value>(),
        K::fn<"removeMode", pick<void (S::*)(SA::GLMode)>(&S::removeMode), mode>(),
        K::fn<"getMode", pick<Value (S::*)(SA::GLMode) const>(&S::getMode), mode>(),
        K::fn<"setModeList", &S::setModeList, "osg::StateSet::ModeList &">(),
        K::pair<"getModeList", NR<S::ModeList>(&S::getModeList), CR<S::ModeList>(&S::getModeList)>(),
        K::overload<"setAttribute", K::m<"setAttribute", pick<void (S::*)(SA *, Value)>(&S::setAttribute), attr, override_value>,
                    K::m<"setAttribute", [](S *s, SA *a) { s->setAttribute(a); }, attr>>(),
        K::overload<"setAttributeAndModes", K::m<"setAttributeAndModes", pick<void (S::*)(SA *, Value)>(&S::setAttributeAndModes), attr, mode_value>,
                    K::m<"setAttributeAndModes", [](S *s, SA *a) { s->setAttributeAndModes(a); }, attr>>(),
        K::overload<"removeAttribute", K::m<"removeAttribute", pick<void (S::*)(Type, unsigned)>(&S::removeAttribute), type, ui>,
                    K::m<"removeAttribute", [](S *s, Type t) { s->removeAttribute(t); }, type>,
                    K::m<"removeAttribute", pick<void (S::*)(SA *)>(&S::removeAttribute), attr>>(),
        K::overload<"getAttribute", K::m<"getAttribute", NC<SA, Type, unsigned>(&S::getAttribute), type, ui>,
                    K::m<"getAttribute", [](S *s, Type t) { return s->getAttribute(t); }, type>,
                    K::m<"getAttribute", CC<SA, Type, unsigned>(&S::getAttribute), type, ui>,
                    K::m<"getAttribute", [](const S *s, Type t) { return s->getAttribute(t); }, type>>(),
        K::overload<"getAttributePair", K::m<"getAttributePair", NC<S::RefAttributePair, Type, unsigned>(&S::getAttributePair), type, ui>,
                    K::m<"getAttributePair", [](S *s, Type t) { return s->getAttributePair(t); }, type>,
                    K::m<"getAttributePair", CC<S::RefAttributePair, Type, unsigned>(&S::getAttributePair), type, ui>,
                    K::m<"getAttributePair", [](const S *s, Type t) { return s->getAttributePair(t); }, type>>(),
        K::fn<"setAttributeList", &S::setAttributeList, "osg::StateSet::AttributeList &">(),
        K::pair<"getAttributeList", NR<S::AttributeList>(&S::getAttributeList), CR<S::AttributeList>(&S::getAttributeList)>(),
        K::fn<"setTextureMode", pick<void (S::*)(unsigned, SA::GLMode, Value)>(&S::setTextureMode), ui, mode, mode_value>(),
        K::fn<"removeTextureMode", pick<void (S::*)(unsigned, SA::GLMode)>(&S::removeTextureMode), ui, mode>(),
        K::fn<"getTextureMode", pick<Value (S::*)(unsigned, SA::GLMode) const>(&S::getTextureMode), ui, mode>(),
        K::fn<"setTextureModeList", &S::setTextureModeList, "osg::StateSet::TextureModeList &">(),
        K::pair<"getTextureModeList", NR<S::TextureModeList>(&S::getTextureModeList),
                CR<S::TextureModeList>(&S::getTextureModeList)>(),
        K::fn<"getNumTextureModeLists", &S::getNumTextureModeLists>(),
        K::overload<"setTextureAttribute", K::m<"setTextureAttribute", pick<void (S::*)(unsigned, SA *, Value)>(&S::setTextureAttribute), ui, attr, override_value>,
                    K::m<"setTextureAttribute", [](S *s, unsigned u, SA *a) { s->setTextureAttribute(u, a); }, ui, attr>>(),
        K::overload<"setTextureAttributeAndModes", K::m<"setTextureAttributeAndModes", pick<void (S::*)(unsigned, SA *, Value)>(&S::setTextureAttributeAndModes), ui, attr, mode_value>,
                    K::m<"setTextureAttributeAndModes", [](S *s, unsigned u, SA *a) { s->setTextureAttributeAndModes(u, a); }, ui, attr>>(),
        K::overload<"removeTextureAttribute", K::m<"removeTextureAttribute", pick<void (S::*)(unsigned, Type)>(&S::removeTextureAttribute), ui, type>,
                    K::m<"removeTextureAttribute", pick<void (S::*)(unsigned, SA *)>(&S::removeTextureAttribute), ui, attr>>(),
        K::pair<"getTextureAttribute", NC<SA, unsigned, Type>(&S::getTextureAttribute), CC<SA, unsigned, Type>(&S::getTextureAttribute), ui, type>(),
        K::pair<"getTextureAttributePair", NC<S::RefAttributePair, unsigned, Type>(&S::getTextureAttributePair),
                 CC<S::RefAttributePair, unsigned, Type>(&S::getTextureAttributePair), ui, type>(),
        K::fn<"setTextureAttributeList", &S::setTextureAttributeList, "osg::StateSet::TextureAttributeList &">(),
        K::pair<"getTextureAttributeList", NR<S::TextureAttributeList>(&S::getTextureAttributeList),
                CR<S::TextureAttributeList>(&S::getTextureAttributeList)>(),
        K::fn<"getNumTextureAttributeLists", &S::getNumTextureAttributeLists>(),
        K::fn<"setAssociatedModes", &S::setAssociatedModes, "osg::StateAttribute const *", mode_value>(),
        K::fn<"removeAssociatedModes", &S::removeAssociatedModes, "osg::StateAttribute const *">(),
        K::fn<"setAssociatedTextureModes", &S::setAssociatedTextureModes, ui, "osg::StateAttribute const *", mode_value>(),
        K::fn<"removeAssociatedTextureModes", &S::removeAssociatedTextureModes, ui, "osg::StateAttribute const *">(),
        K::overload<"addUniform", K::m<"addUniform", pick<void (S::*)(U *, Value)>(&S::addUniform), "osg::Uniform *", override_value>,
                    K::m<"addUniform", [](S *s, U *u) { s->addUniform(u); }, "osg::Uniform *">>(),
        K::overload<"removeUniform", K::m<"removeUniform", pick<void (S::*)(const std::string &)>(&S::removeUniform), str>,
                    K::m<"removeUniform", pick<void (S::*)(U *)>(&S::removeUniform), "osg::Uniform *">>(),
        K::overload<"getOrCreateUniform", K::m<"getOrCreateUniform", &S::getOrCreateUniform, str, uniform_type, ui>,
                    K::m<"getOrCreateUniform", [](S *s, const std::string &n, U::Type t) { return s->getOrCreateUniform(n, t); }, str, uniform_type>>(),
        K::pair<"getUniform", NC<U, const std::string &>(&S::getUniform), CC<U, const std::string &>(&S::getUniform), str>(),
        K::fn<"getUniformPair", &S::getUniformPair, str>(),
        K::fn<"setUniformList", &S::setUniformList, "osg::StateSet::UniformList &">(),
        K::pair<"getUniformList", NR<S::UniformList>(&S::getUniformList), CR<S::UniformList>(&S::getUniformList)>(),
        K::overload<"setDefine", K::m<"setDefine", pick<void (S::*)(const std::string &, Value)>(&S::setDefine), str, override_value>,
                    K::m<"setDefine", [](S *s, const std::string &n) { s->setDefine(n); }, str>,
                    K::m<"setDefine", pick<void (S::*)(const std::string &, const std::string &, Value)>(&S::setDefine), str, str, override_value>,
                    K::m<"setDefine", [](S *s, const std::string &n, const std::string &v) { s->setDefine(n, v); }, str, str>>(),
        K::pair<"getDefinePair", NC<S::DefinePair, const std::string &>(&S::getDefinePair),
                 CC<S::DefinePair, const std::string &>(&S::getDefinePair), str>(),
        K::fn<"removeDefine", &S::removeDefine, str>(),
        K::fn<"setDefineList", &S::setDefineList, "osg::StateSet::DefineList const &">(),
        K::pair<"getDefineList", NR<S::DefineList>(&S::getDefineList), CR<S::DefineList>(&S::getDefineList)>(),
        K::fn<"setRenderingHint", &S::setRenderingHint, "int">(),
        K::fn<"getRenderingHint", &S::getRenderingHint>(),
        K::overload<"setRenderBinDetails", K::m<"setRenderBinDetails", &S::setRenderBinDetails, "int", str, "osg::StateSet::RenderBinMode">,
                    K::m<"setRenderBinDetails", [](S *s, int n, const std::string &b) { s->setRenderBinDetails(n, b); }, "int", str>>(),
        K::fn<"setRenderBinToInherit", &S::setRenderBinToInherit>(),
        K::fn<"useRenderBinDetails", &S::useRenderBinDetails>(),
        K::fn<"setRenderBinMode", &S::setRenderBinMode, "osg::StateSet::RenderBinMode">(),
        K::fn<"getRenderBinMode", &S::getRenderBinMode>(),
        K::fn<"setBinNumber", &S::setBinNumber, "int">(),
        K::fn<"getBinNumber", &S::getBinNumber>(),
        K::fn<"setBinName", &S::setBinName, str>(),
        K::fn<"getBinName", &S::getBinName>(),
        K::fn<"setNestRenderBins", &S::setNestRenderBins, "bool">(),
        K::fn<"getNestRenderBins", &S::getNestRenderBins>(),
        K::fn<"setUpdateCallback", pick<void (S::*)(S::Callback *)>(&S::setUpdateCallback), "osg::StateSet::Callback *">(),
        K::pair<"getUpdateCallback", NC<S::Callback>(&S::getUpdateCallback), CC<S::Callback>(&S::getUpdateCallback)>(),
        K::fn<"requiresUpdateTraversal", &S::requiresUpdateTraversal>(),
        K::fn<"getNumChildrenRequiringUpdateTraversal", &S::getNumChildrenRequiringUpdateTraversal>(),
        K::fn<"runUpdateCallbacks", &S::runUpdateCallbacks, "osg::NodeVisitor *">(),
        K::fn<"setEventCallback", pick<void (S::*)(S::Callback *)>(&S::setEventCallback), "osg::StateSet::Callback *">(),
        K::pair<"getEventCallback", NC<S::Callback>(&S::getEventCallback), CC<S::Callback>(&S::getEventCallback)>(),
        K::fn<"requiresEventTraversal", &S::requiresEventTraversal>(),
        K::fn<"getNumChildrenRequiringEventTraversal", &S::getNumChildrenRequiringEventTraversal>(),
        K::fn<"runEventCallbacks", &S::runEventCallbacks, "osg::NodeVisitor *">(),
        K::fn<"checkValidityOfAssociatedModes", &S::checkValidityOfAssociatedModes, state_ref>(),
        K::fn<"setThreadSafeRefUnref", &S::setThreadSafeRefUnref, "bool">(),
        K::fn<"compileGLObjects", &S::compileGLObjects, state_ref>(),
        K::fn<"resizeGLObjectBuffers", &S::resizeGLObjectBuffers, ui>(),
        K::release_gl_objects(),
        register_row<ty::p_osg__StateSet>("StateSet_swigregister"),
        init_row("StateSet_swiginit"),
    });
}
