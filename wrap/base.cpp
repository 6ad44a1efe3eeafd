// osg::Referenced, osg::CopyOp, osg::Object and osg::DummyObject.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using R = osg::Referenced;
using K = Class<R, "osg::Referenced", "Referenced">;

void unref(R *p) { p->unref(); }
void ref(R *p) { p->ref(); }

}  // namespace

void add_referenced_rows(Table &t) {
    add(t, {
        K::ctor<TakeRef::Count, K::with<>::c<>, K::with<bool>::c<"bool">,
                K::with<const R &>::c<"osg::Referenced const &">>(),
        K::fn<"setThreadSafeRefUnref", &R::setThreadSafeRefUnref, "bool">(),
        K::fn<"getThreadSafeRefUnref", &R::getThreadSafeRefUnref>(),
        K::fn<"getRefMutex", &R::getRefMutex>(),
        K::static_fn<"getGlobalReferencedMutex", &R::getGlobalReferencedMutex>(),
        K::fn<"unref_nodelete", &R::unref_nodelete>(),
        K::fn<"referenceCount", &R::referenceCount>(),
        K::fn<"getObserverSet", &R::getObserverSet>(),
        K::fn<"getOrCreateObserverSet", &R::getOrCreateObserverSet>(),
        K::fn<"addObserver", &R::addObserver, "osg::Observer *">(),
        K::fn<"removeObserver", &R::removeObserver, "osg::Observer *">(),
        K::static_fn<"setDeleteHandler", &R::setDeleteHandler, "osg::DeleteHandler *">(),
        K::static_fn<"getDeleteHandler", &R::getDeleteHandler>(),
        K::dtor_unref(),
        register_row<ty::p_osg__Referenced>("Referenced_swigregister"),
        init_row("Referenced_swiginit"),
        fn<"intrusive_ptr_add_ref", ref, "osg::Referenced *">(),
        fn<"intrusive_ptr_release", unref, "osg::Referenced *">(),
    });
}

namespace {

using C = osg::CopyOp;
using KC = Class<C, "osg::CopyOp", "CopyOp">;

// One const operator() per copyable kind of object.
template <class T, Text Spelling>
using copy = KC::m<"operator ()", pick<T *(C::*)(const T *) const>(&C::operator()), Spelling>;

}  // namespace

void add_copyop_rows(Table &t) {
    add(t, {
        KC::ctor<TakeRef::None, KC::with<C::CopyFlags>::c<"osg::CopyOp::CopyFlags">, KC::with<>::c<>>(),
        KC::dtor_delete(),
        KC::fn<"setCopyFlags", &C::setCopyFlags, "osg::CopyOp::CopyFlags">(),
        KC::fn<"getCopyFlags", &C::getCopyFlags>(),
        // Tried in a fixed order that differs from the declaration order of the message.
        KC::overload_ordered<"__call__", Order<2, 4, 5, 3, 1, 0, 6, 7, 8, 9, 10, 11, 12, 13, 14>,
                             copy<osg::Referenced, "osg::Referenced const *">, copy<osg::Object, "osg::Object const *">,
                             copy<osg::Node, "osg::Node const *">, copy<osg::Drawable, "osg::Drawable const *">,
                             copy<osg::StateSet, "osg::StateSet const *">,
                             copy<osg::StateAttribute, "osg::StateAttribute const *">,
                             copy<osg::Texture, "osg::Texture const *">, copy<osg::Image, "osg::Image const *">,
                             copy<osg::Array, "osg::Array const *">, copy<osg::PrimitiveSet, "osg::PrimitiveSet const *">,
                             copy<osg::Shape, "osg::Shape const *">, copy<osg::Uniform, "osg::Uniform const *">,
                             copy<osg::Callback, "osg::Callback const *">,
                             copy<osg::StateAttributeCallback, "osg::StateAttributeCallback const *">,
                             copy<osg::UniformCallback, "osg::UniformCallback const *">>(),
        register_row<ty::p_osg__CopyOp>("CopyOp_swigregister"),
        init_row("CopyOp_swiginit"),
    });
}

namespace {

using O = osg::Object;
using KO = Class<O, "osg::Object", "Object">;

// Member pointers of a const/non-const accessor pair returning T.
template <class T>
using NC = T *(O::*)();
template <class T>
using CC = const T *(O::*)() const;

}  // namespace

void add_object_rows(Table &t) {
    add(t, {
        KO::fn<"cloneType", &O::cloneType>(),
        KO::fn<"clone", &O::clone, "osg::CopyOp const &">(),
        KO::fn<"isSameKindAs", &O::isSameKindAs, "osg::Object const *">(),
        KO::fn<"libraryName", &O::libraryName>(),
        KO::fn<"className", &O::className>(),
        KO::fn<"getCompoundClassName", &O::getCompoundClassName>(),
        KO::pair<"asNode", NC<osg::Node>(&O::asNode), CC<osg::Node>(&O::asNode)>(),
        KO::pair<"asNodeVisitor", NC<osg::NodeVisitor>(&O::asNodeVisitor), CC<osg::NodeVisitor>(&O::asNodeVisitor)>(),
        KO::pair<"asStateSet", NC<osg::StateSet>(&O::asStateSet), CC<osg::StateSet>(&O::asStateSet)>(),
        KO::pair<"asStateAttribute", NC<osg::StateAttribute>(&O::asStateAttribute),
                 CC<osg::StateAttribute>(&O::asStateAttribute)>(),
        KO::pair<"asUniform", NC<osg::Uniform>(&O::asUniform), CC<osg::Uniform>(&O::asUniform)>(),
        KO::pair<"asCamera", NC<osg::Camera>(&O::asCamera), CC<osg::Camera>(&O::asCamera)>(),
        KO::pair<"asDrawable", NC<osg::Drawable>(&O::asDrawable), CC<osg::Drawable>(&O::asDrawable)>(),
        KO::pair<"asCallback", NC<osg::Callback>(&O::asCallback), CC<osg::Callback>(&O::asCallback)>(),
        KO::pair<"asCallbackObject", NC<osg::CallbackObject>(&O::asCallbackObject),
                 CC<osg::CallbackObject>(&O::asCallbackObject)>(),
        KO::pair<"asUserDataContainer", NC<osg::UserDataContainer>(&O::asUserDataContainer),
                 CC<osg::UserDataContainer>(&O::asUserDataContainer)>(),
        KO::pair<"asValueObject", NC<osg::ValueObject>(&O::asValueObject), CC<osg::ValueObject>(&O::asValueObject)>(),
        KO::pair<"asImage", NC<osg::Image>(&O::asImage), CC<osg::Image>(&O::asImage)>(),
        KO::fn<"setThreadSafeRefUnref", &O::setThreadSafeRefUnref, "bool">(),
        KO::overload<"setName", KO::m<"setName", pick<void (O::*)(const std::string &)>(&O::setName), "std::string const &">,
                     KO::m<"setName", pick<void (O::*)(const char *)>(&O::setName), "char const *">>(),
        KO::fn<"getName", &O::getName>(),
        KO::fn<"setDataVariance", &O::setDataVariance, "osg::Object::DataVariance">(),
        KO::fn<"getDataVariance", &O::getDataVariance>(),
        KO::fn<"computeDataVariance", &O::computeDataVariance>(),
        KO::fn<"setUserDataContainer", pick<void (O::*)(osg::UserDataContainer *)>(&O::setUserDataContainer),
               "osg::UserDataContainer *">(),
        KO::pair<"getUserDataContainer", NC<osg::UserDataContainer>(&O::getUserDataContainer),
                 CC<osg::UserDataContainer>(&O::getUserDataContainer)>(),
        KO::fn<"getOrCreateUserDataContainer", &O::getOrCreateUserDataContainer>(),
        KO::fn<"setUserData", pick<void (O::*)(osg::Referenced *)>(&O::setUserData), "osg::Referenced *">(),
        KO::pair<"getUserData", NC<osg::Referenced>(&O::getUserData), CC<osg::Referenced>(&O::getUserData)>(),
        KO::fn<"resizeGLObjectBuffers", &O::resizeGLObjectBuffers, "unsigned int">(),
        KO::release_gl_objects(),
        register_row<ty::p_osg__Object>("Object_swigregister"),
    });
}

namespace {

using D = osg::DummyObject;
using KD = Class<D, "osg::DummyObject", "DummyObject">;

}  // namespace

void add_dummy_object_rows(Table &t) {
    add(t, {
        KD::ctor<TakeRef::Count, KD::with<>::c<>,
                 KD::with<const D &, const osg::CopyOp &>::c<"osg::DummyObject const &", "osg::CopyOp const &">>(),
        KD::fn<"cloneType", &D::cloneType>(),
        KD::fn<"clone", &D::clone, "osg::CopyOp const &">(),
        KD::fn<"isSameKindAs", &D::isSameKindAs, "osg::Object const *">(),
        KD::fn<"libraryName", &D::libraryName>(),
        KD::fn<"className", &D::className>(),
        register_row<ty::p_osg__DummyObject>("DummyObject_swigregister"),
        init_row("DummyObject_swiginit"),
        // The free forms the object header declares after its classes; a null object is skipped by OSG.
        fn<"resizeGLObjectBuffers", pick<void (*)(osg::Object *, unsigned int)>(osg::resizeGLObjectBuffers), "osg::Object *",
           "unsigned int">(),
        overload<"releaseGLObjects",
                 fc<"osg::releaseGLObjects", pick<void (*)(osg::Object *, osg::State *)>(osg::releaseGLObjects),
                    "osg::Object *", "osg::State *">,
                 fc<"osg::releaseGLObjects", [](osg::Object *object) { osg::releaseGLObjects(object); }, "osg::Object *">>(),
    });
}
