// The rows every node class repeats: its constructors, the META_Node members, its own
// as<Class> pair, the local/world matrix members of the transforms (and the camera) and
// the class hooks. One template, instantiated per class; each class table places them.
#pragma once
#include "wrap/osg.h"

namespace scene {

template <class T, wrap::Text Spelling, wrap::Text Prefix>
struct NodeClass : wrap::Class<T, Spelling, Prefix> {
    using K = wrap::Class<T, Spelling, Prefix>;
    static constexpr auto cref = wrap::cat(Spelling, wrap::Text(" const &"));

    // new_<Prefix>: T(), T(T const &, CopyOp const &), T(T const &) (the default CopyOp), then
    // any further constructors; R is the reference the class takes on its new object.
    template <wrap::TakeRef R, class... More>
    static constexpr wrap::Row ctor() {
        using W = typename K::template with<const T &, const osg::CopyOp &>;
        return K::template ctor<R, typename K::template with<>::template c<>,
                                typename W::template c<cref, "osg::CopyOp const &">,
                                typename K::template with<const T &>::template c<cref>, More...>();
    }

    // Called through T, so that argument 1 is always the class's own descriptor.
    static void meta(wrap::Table &t, bool accept = true) {
        wrap::add(t, {
            K::template fn<"cloneType", [](const T *self) { return self->cloneType(); }>(),
            K::template fn<"clone", [](const T *self, const osg::CopyOp &op) { return self->clone(op); },
                           "osg::CopyOp const &">(),
            K::template fn<"isSameKindAs", [](const T *self, const osg::Object *o) { return self->isSameKindAs(o); },
                           "osg::Object const *">(),
            K::template fn<"className", [](const T *self) { return self->className(); }>(),
            K::template fn<"libraryName", [](const T *self) { return self->libraryName(); }>(),
        });
        if (accept) t.push_back(K::template fn<"accept", [](T *self, osg::NodeVisitor &nv) { self->accept(nv); },
                                               "osg::NodeVisitor &">());
    }

    // as<Prefix>: the non-const member, listed first, is always taken.
    template <auto NonConst, auto Const>
    static constexpr wrap::Row as_self() {
        return K::template pair<wrap::cat(wrap::Text("as"), Prefix), NonConst, Const>();
    }

    // The matrix argument is modified in place; the visitor may be None.
    static void matrices(wrap::Table &t) {
        wrap::add(t, {
            K::template fn<"computeLocalToWorldMatrix",
                           [](const T *self, osg::Matrix &m, osg::NodeVisitor *nv) { return self->computeLocalToWorldMatrix(m, nv); },
                           "osg::Matrix &", "osg::NodeVisitor *">(),
            K::template fn<"computeWorldToLocalMatrix",
                           [](const T *self, osg::Matrix &m, osg::NodeVisitor *nv) { return self->computeWorldToLocalMatrix(m, nv); },
                           "osg::Matrix &", "osg::NodeVisitor *">(),
        });
    }

    static void hooks(wrap::Table &t) {
        wrap::add(t, {
            K::register_hook(),
            K::init_hook(),
        });
    }
};

}  // namespace scene
