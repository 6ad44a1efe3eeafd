// osg::Group, osg::Geode and osg::Switch: the child-holding nodes.
#include "scene/node_class.h"

using namespace wrap;

namespace {

using G = osg::Group;
using KG = scene::NodeClass<G, "osg::Group", "Group">;

template <class T, class C, class... A>
using NC = T *(C::*)(A...);
template <class T, class C, class... A>
using CC = const T *(C::*)(A...) const;

void unreference(G *p) { osg::Group_unreference(p); }

}  // namespace

void add_group_rows(Table &t) {
    add(t, {KG::ctor<TakeRef::Group>(), KG::dtor<unreference>()});
    KG::meta(t);
    add(t, {
        KG::as_self<NC<G, G>(&G::asGroup), CC<G, G>(&G::asGroup)>(),
        KG::fn<"traverse", &G::traverse, "osg::NodeVisitor &">(),
        KG::fn<"addChild", pick<bool (G::*)(osg::Node *)>(&G::addChild), "osg::Node *">(),
        KG::fn<"insertChild", pick<bool (G::*)(unsigned int, osg::Node *)>(&G::insertChild), "unsigned int", "osg::Node *">(),
        KG::overload<"removeChild", KG::m<"removeChild", pick<bool (G::*)(osg::Node *)>(&G::removeChild), "osg::Node *">,
                     KG::m<"removeChild", pick<bool (G::*)(unsigned int, unsigned int)>(&G::removeChild), "unsigned int",
                           "unsigned int">,
                     KG::m<"removeChild", [](G *self, unsigned int pos) { return self->removeChild(pos); }, "unsigned int">>(),
        KG::fn<"removeChildren", &G::removeChildren, "unsigned int", "unsigned int">(),
        KG::fn<"replaceChild", pick<bool (G::*)(osg::Node *, osg::Node *)>(&G::replaceChild), "osg::Node *", "osg::Node *">(),
        KG::fn<"getNumChildren", &G::getNumChildren>(),
        KG::fn<"setChild", &G::setChild, "unsigned int", "osg::Node *">(),
        KG::overload<"getChild", KG::m<"getChild", NC<osg::Node, G, unsigned int>(&G::getChild), "unsigned int">,
                     KG::m<"getChild", CC<osg::Node, G, unsigned int>(&G::getChild), "unsigned int">>(),
        KG::fn<"containsNode", pick<bool (G::*)(const osg::Node *) const>(&G::containsNode), "osg::Node const *">(),
        KG::fn<"getChildIndex", &G::getChildIndex, "osg::Node const *">(),
        KG::fn<"setThreadSafeRefUnref", &G::setThreadSafeRefUnref, "bool">(),
        KG::fn<"resizeGLObjectBuffers", &G::resizeGLObjectBuffers, "unsigned int">(),
        KG::release_gl_objects(),
    });
    KG::hooks(t);
}

namespace {

using D = osg::Geode;
using KD = scene::NodeClass<D, "osg::Geode", "Geode">;

}  // namespace

void add_geode_rows(Table &t) {
    t.push_back(KD::ctor<TakeRef::Group>());
    KD::meta(t);
    add(t, {
        KD::as_self<NC<D, D>(&D::asGeode), CC<D, D>(&D::asGeode)>(),
        KD::fn<"addDrawable", pick<bool (D::*)(osg::Drawable *)>(&D::addDrawable), "osg::Drawable *">(),
        KD::fn<"removeDrawable", pick<bool (D::*)(osg::Drawable *)>(&D::removeDrawable), "osg::Drawable *">(),
        KD::overload<"removeDrawables", KD::m<"removeDrawables", &D::removeDrawables, "unsigned int", "unsigned int">,
                     KD::m<"removeDrawables", [](D *self, unsigned int i) { return self->removeDrawables(i); }, "unsigned int">>(),
        KD::fn<"replaceDrawable", pick<bool (D::*)(osg::Drawable *, osg::Drawable *)>(&D::replaceDrawable), "osg::Drawable *",
               "osg::Drawable *">(),
        KD::fn<"setDrawable", pick<bool (D::*)(unsigned int, osg::Drawable *)>(&D::setDrawable), "unsigned int",
               "osg::Drawable *">(),
        KD::fn<"getNumDrawables", &D::getNumDrawables>(),
        KD::overload<"getDrawable", KD::m<"getDrawable", NC<osg::Drawable, D, unsigned int>(&D::getDrawable), "unsigned int">,
                     KD::m<"getDrawable", CC<osg::Drawable, D, unsigned int>(&D::getDrawable), "unsigned int">>(),
        KD::fn<"containsDrawable", pick<bool (D::*)(const osg::Drawable *) const>(&D::containsDrawable),
               "osg::Drawable const *">(),
        KD::fn<"getDrawableIndex", pick<unsigned int (D::*)(const osg::Drawable *) const>(&D::getDrawableIndex),
               "osg::Drawable const *">(),
        KD::fn<"compileDrawables", &D::compileDrawables, "osg::RenderInfo &">(),
        KD::fn<"getBoundingBox", &D::getBoundingBox>(),
    });
    KD::hooks(t);
}

namespace {

using S = osg::Switch;
using KS = scene::NodeClass<S, "osg::Switch", "Switch">;

}  // namespace

void add_switch_rows(Table &t) {
    add(t, {
        KS::ctor<TakeRef::Group>(),
        KS::as_self<NC<S, S>(&S::asSwitch), CC<S, S>(&S::asSwitch)>(),
    });
    KS::meta(t);
    add(t, {
        KS::fn<"traverse", &S::traverse, "osg::NodeVisitor &">(),
        KS::fn<"setNewChildDefaultValue", &S::setNewChildDefaultValue, "bool">(),
        KS::fn<"getNewChildDefaultValue", &S::getNewChildDefaultValue>(),
        KS::overload<"addChild", KS::m<"addChild", pick<bool (S::*)(osg::Node *)>(&S::addChild), "osg::Node *">,
                     KS::m<"addChild", pick<bool (S::*)(osg::Node *, bool)>(&S::addChild), "osg::Node *", "bool">>(),
        KS::overload<"insertChild",
                     KS::m<"insertChild", pick<bool (S::*)(unsigned int, osg::Node *)>(&S::insertChild), "unsigned int",
                           "osg::Node *">,
                     KS::m<"insertChild", pick<bool (S::*)(unsigned int, osg::Node *, bool)>(&S::insertChild),
                           "unsigned int", "osg::Node *", "bool">>(),
        KS::fn<"removeChildren", &S::removeChildren, "unsigned int", "unsigned int">(),
        KS::fn<"setValue", &S::setValue, "unsigned int", "bool">(),
        KS::fn<"getValue", &S::getValue, "unsigned int">(),
        KS::fn<"setChildValue", &S::setChildValue, "osg::Node const *", "bool">(),
        KS::fn<"getChildValue", &S::getChildValue, "osg::Node const *">(),
        KS::fn<"setAllChildrenOff", &S::setAllChildrenOff>(),
        KS::fn<"setAllChildrenOn", &S::setAllChildrenOn>(),
        KS::fn<"setSingleChildOn", &S::setSingleChildOn, "unsigned int">(),
        KS::fn<"setValueList", &S::setValueList, "osg::Switch::ValueList const &">(),
        KS::fn<"getValueList", &S::getValueList>(),
    });
    KS::hooks(t);
}
