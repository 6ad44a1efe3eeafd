// The rows every osg::Object class of a sibling module repeats: its constructors with the copy
// pair last, the META_Object members and the class hooks. One template, instantiated per class
// where the module's type table (its bind.h) is in scope.
#pragma once
#include "wrap/engine.h"

#include <osg/CopyOp>
#include <osg/Object>

namespace wrap {

template <class T, wrap::Text Spelling, wrap::Text Prefix>
struct ObjectClass : wrap::Class<T, Spelling, Prefix> {
    using K = wrap::Class<T, Spelling, Prefix>;
    static constexpr auto cref = wrap::cat(Spelling, wrap::Text(" const &"));

    // new_<Prefix>: T(), then the class's own constructors in header order, then
    // T(T const &, CopyOp const &) and its short form; R is the reference the new object takes.
    template <wrap::TakeRef R, class... More>
    static constexpr wrap::Row ctor() {
        using W = typename K::template with<const T &, const osg::CopyOp &>;
        return K::template ctor<R, typename K::template with<>::template c<>, More...,
                                typename W::template c<cref, "osg::CopyOp const &">,
                                typename K::template with<const T &>::template c<cref>>();
    }

    // Called through T, so that argument 1 is the class's own descriptor even where the member
    // is inherited (the abstract osg::Shape's cloneType is its shapes').
    static void meta(wrap::Table &t) {
        wrap::add(t, {
            K::template fn<"cloneType", [](const T *self) { return self->cloneType(); }>(),
            K::template fn<"clone", [](const T *self, const osg::CopyOp &op) { return self->clone(op); },
                           "osg::CopyOp const &">(),
            K::template fn<"isSameKindAs", [](const T *self, const osg::Object *o) { return self->isSameKindAs(o); },
                           "osg::Object const *">(),
            K::template fn<"libraryName", [](const T *self) { return self->libraryName(); }>(),
            K::template fn<"className", [](const T *self) { return self->className(); }>(),
        });
    }

    static void hooks(wrap::Table &t) { wrap::add(t, {K::register_hook(), K::init_hook()}); }
};

}  // namespace wrap
