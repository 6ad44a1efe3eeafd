// The rows every object class of _osgViewer repeats: its constructors with the copy pair last,
// the META_Object members and the class hooks. One template, instantiated per class.
#pragma once
#include "viewer/bind.h"

namespace viewer {

template <class T, wrap::Text Spelling, wrap::Text Prefix>
struct ObjectClass : wrap::Class<T, Spelling, Prefix> {
    using K = wrap::Class<T, Spelling, Prefix>;
    static constexpr auto cref = wrap::cat(Spelling, wrap::Text(" const &"));

    // new_<Prefix>: T(), then the class's own constructors, then T(T const &, CopyOp const &)
    // and its short form. Every class here is reference counted: the new object takes one.
    template <class... More>
    static constexpr wrap::Row ctor() {
        using W = typename K::template with<const T &, const osg::CopyOp &>;
        return K::template ctor<wrap::TakeRef::Count, typename K::template with<>::template c<>, More...,
                                typename W::template c<cref, "osg::CopyOp const &">,
                                typename K::template with<const T &>::template c<cref>>();
    }

    // Called through T, so that argument 1 is the class's own descriptor where the member is
    // inherited.
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

// An enumerator as the module's integer constant, read back signed as _osg's are.
template <class E>
constexpr IntConstant constant(const char *name, E value) {
    return {name, static_cast<long>(static_cast<int>(value))};
}

}  // namespace viewer
