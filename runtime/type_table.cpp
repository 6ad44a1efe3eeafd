// The module's 130 type descriptors, sorted by mangled name, and its cast graph.
// The graph is deliberately narrower than the class hierarchy: Camera, Texture2D and the
// reference-counted matrices have no edge to their bases.
#include "runtime/type_table.h"
#include "runtime/osg_headers.h"

namespace {

// Upcast by the compiler, so multiple-inheritance offsets (RefMatrixd -> Matrixd) come out right.
template <class Derived, class Base>
void *upcast(void *p, int *) {
    return static_cast<Base *>(static_cast<Derived *>(p));
}

swig_type_info swig_type_initial[] = {
    {"_p_AttributeList", "AttributeList *", nullptr, nullptr, nullptr, 0},
    {"_p_BufferAttachmentMap", "BufferAttachmentMap *", nullptr, nullptr, nullptr, 0},
    {"_p_Callback", "Callback *", nullptr, nullptr, nullptr, 0},
    {"_p_ClipPlaneList", "ClipPlaneList *", nullptr, nullptr, nullptr, 0},
    {"_p_CopyFlags", "CopyFlags *", nullptr, nullptr, nullptr, 0},
    {"_p_DefineList", "DefineList *", nullptr, nullptr, nullptr, 0},
    {"_p_DefinePair", "DefinePair *", nullptr, nullptr, nullptr, 0},
    {"_p_DescriptionList", "DescriptionList *", nullptr, nullptr, nullptr, 0},
    {"_p_GLMode", "GLMode *", nullptr, nullptr, nullptr, 0},
    {"_p_GLModeValue", "GLModeValue *", nullptr, nullptr, nullptr, 0},
    {"_p_GLbitfield", "GLbitfield *", nullptr, nullptr, nullptr, 0},
    {"_p_GLenum", "osg::StateAttribute::GLMode *|GLenum *", nullptr, nullptr, nullptr, 0},
    {"_p_ImplicitBufferAttachmentMask", "ImplicitBufferAttachmentMask *", nullptr, nullptr, nullptr, 0},
    {"_p_ModeList", "ModeList *", nullptr, nullptr, nullptr, 0},
    {"_p_NodeMask", "NodeMask *", nullptr, nullptr, nullptr, 0},
    {"_p_OpenThreads__Affinity", "OpenThreads::Affinity *", nullptr, nullptr, nullptr, 0},
    {"_p_OpenThreads__Mutex", "OpenThreads::Mutex *", nullptr, nullptr, nullptr, 0},
    {"_p_OverrideValue", "OverrideValue *", nullptr, nullptr, nullptr, 0},
    {"_p_ParentList", "ParentList *", nullptr, nullptr, nullptr, 0},
    {"_p_RefAttributePair", "RefAttributePair *", nullptr, nullptr, nullptr, 0},
    {"_p_RefUniformPair", "RefUniformPair *", nullptr, nullptr, nullptr, 0},
    {"_p_TextureAttributeList", "TextureAttributeList *", nullptr, nullptr, nullptr, 0},
    {"_p_TextureModeList", "TextureModeList *", nullptr, nullptr, nullptr, 0},
    {"_p_TypeMemberPair", "TypeMemberPair *", nullptr, nullptr, nullptr, 0},
    {"_p_UniformList", "UniformList *", nullptr, nullptr, nullptr, 0},
    {"_p_ValueList", "ValueList *", nullptr, nullptr, nullptr, 0},
    {"_p_Vec3_type", "Vec3_type *", nullptr, nullptr, nullptr, 0},
    {"_p_Vec4_type", "Vec4_type *", nullptr, nullptr, nullptr, 0},
    {"_p_char", "char *", nullptr, nullptr, nullptr, 0},
    {"_p_double", "osg::Matrixd::value_type *|osg::Plane::value_type *|osg::Quat::value_type *|osg::Vec2d::value_type *|osg::Vec3d::value_type *|osg::Vec4d::value_type *|osg::Viewport::value_type *|double *", nullptr, nullptr, nullptr, 0},
    {"_p_float", "osg::Matrixf::value_type *|osg::Vec2f::value_type *|osg::Vec3f::value_type *|osg::Vec4f::value_type *|float *", nullptr, nullptr, nullptr, 0},
    {"_p_osgTerrain__Terrain", "osgTerrain::Terrain *", nullptr, nullptr, nullptr, 0},
    {"_p_osgUtil__SmoothingVisitor", "osgUtil::SmoothingVisitor *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Array", "osg::Array *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__AutoTransform", "osg::AutoTransform *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__BoundingBoxImplT_osg__Vec3d_t", "osg::BoundingBox *|osg::BoundingBoxd *|osg::BoundingBoxImpl< osg::Vec3d > *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__BoundingBoxImplT_osg__Vec3f_t", "osg::BoundingBoxf *|osg::BoundingBoxImpl< osg::Vec3f > *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__BoundingSphereImplT_osg__Vec3d_t", "osg::BoundingSphere *|osg::BoundingSphered *|osg::BoundingSphereImpl< osg::Vec3d > *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__BoundingSphereImplT_osg__Vec3f_t", "osg::BoundingSpheref *|osg::BoundingSphereImpl< osg::Vec3f > *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Callback", "osg::Callback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__CallbackObject", "osg::CallbackObject *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Camera", "osg::Camera *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__CameraRenderOrderSortOp", "osg::CameraRenderOrderSortOp *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Camera__DrawCallback", "osg::Camera::DrawCallback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__ClipNode", "osg::ClipNode *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__ClipPlane", "osg::ClipPlane *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__ColorMask", "osg::ColorMask *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__CopyOp", "osg::CopyOp *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__DeleteHandler", "osg::DeleteHandler *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__DisplaySettings", "osg::DisplaySettings *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Drawable", "osg::Drawable *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__DummyObject", "osg::DummyObject *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Fog", "osg::Fog *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Geode", "osg::Geode *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Geometry", "osg::Geometry *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__GraphicsOperation", "osg::GraphicsOperation *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Group", "osg::Group *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Image", "osg::Image *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__MatrixTransform", "osg::MatrixTransform *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Matrixd", "osg::Matrix *|osg::Matrixd *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Matrixf", "osg::Matrixf *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Node", "osg::Node *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__NodeVisitor", "osg::NodeVisitor *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Node__ComputeBoundingSphereCallback", "osg::Node::ComputeBoundingSphereCallback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__NotifyHandler", "osg::NotifyHandler *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Object", "osg::Object *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Observer", "osg::Observer *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__ObserverSet", "osg::ObserverSet *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Plane", "osg::Plane *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__PositionAttitudeTransform", "osg::PositionAttitudeTransform *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__PrimitiveSet", "osg::PrimitiveSet *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Quat", "osg::Quat *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__RefMatrixd", "osg::RefMatrix *|osg::RefMatrixd *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__RefMatrixf", "osg::RefMatrixf *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Referenced", "osg::Referenced *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__RenderInfo", "osg::RenderInfo *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Shape", "osg::Shape *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__StandardNotifyHandler", "osg::StandardNotifyHandler *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__State", "osg::State *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__StateAttribute", "osg::StateAttribute *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__StateAttributeCallback", "osg::StateAttributeCallback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__StateAttribute__ModeUsage", "osg::StateAttribute::ModeUsage *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__StateSet", "osg::StateSet *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__StateSet__Callback", "osg::StateSet::Callback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Stats", "osg::Stats *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Switch", "osg::Switch *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Texture", "osg::Texture *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Texture2D", "osg::Texture2D *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Texture2D__SubloadCallback", "osg::Texture2D::SubloadCallback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Transform", "osg::Transform *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Uniform", "osg::Uniform *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__UniformCallback", "osg::UniformCallback *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Uniform__Type", "osg::Uniform::Type *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__UserDataContainer", "osg::UserDataContainer *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__ValueObject", "osg::ValueObject *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec2d", "osg::Vec2d *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec2f", "osg::Vec2 *|osg::Vec2f *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec3d", "osg::Plane::Vec3_type *|osg::Vec3d *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec3f", "osg::Vec3 *|osg::Vec3f *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec4d", "osg::Plane::Vec4_type *|osg::Vec4d *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Vec4f", "osg::Vec4 *|osg::Vec4f *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__View", "osg::View *", nullptr, nullptr, nullptr, 0},
    {"_p_osg__Viewport", "osg::Viewport *", nullptr, nullptr, nullptr, 0},
    {"_p_other_value_type", "other_value_type *", nullptr, nullptr, nullptr, 0},
    {"_p_std__mapT_GLenum_unsigned_int_t", "osg::StateSet::ModeList *|std::map< GLenum,unsigned int > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t", "osg::Camera::BufferAttachmentMap *|std::map< enum osg::Camera::BufferComponent,osg::Camera::Attachment > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t", "osg::StateSet::AttributeList *|std::map< std::pair< enum osg::StateAttribute::Type,unsigned int >,std::pair< ref_ptr< osg::StateAttribute >,unsigned int > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t", "osg::StateSet::UniformList *|std::map< std::string,std::pair< ref_ptr< osg::Uniform >,unsigned int > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t", "osg::StateSet::DefineList *|std::map< std::string,std::pair< std::string,unsigned int > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__ostream", "std::ostream *", nullptr, nullptr, nullptr, 0},
    {"_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t", "osg::StateAttribute::TypeMemberPair *|std::pair< enum osg::StateAttribute::Type,unsigned int > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t", "osg::StateSet::RefAttributePair *|std::pair< ref_ptr< osg::StateAttribute >,unsigned int > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t", "osg::StateSet::RefUniformPair *|std::pair< ref_ptr< osg::Uniform >,unsigned int > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__pairT_std__string_unsigned_int_t", "osg::StateSet::DefinePair *|std::pair< std::string,unsigned int > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__string", "std::string *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_bool_t", "osg::Switch::ValueList *|std::vector< bool > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_osg__Group_p_t", "osg::Node::ParentList *|std::vector< osg::Group * > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_osg__Matrixd_t", "osg::MatrixList *|std::vector< osg::Matrixd > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_osg__Node_p_t", "osg::NodePath *|osg::StateSet::ParentList *|std::vector< osg::Node * > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_osg__StateSet_p_t", "osg::StateAttribute::ParentList *|std::vector< osg::StateSet * > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_osg__Vec3d_t", "std::vector< osg::Vec3d > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_osg__Vec3f_t", "std::vector< osg::Vec3f > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t", "osg::ClipNode::ClipPlaneList *|std::vector< ref_ptr< osg::ClipPlane > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_ref_ptrT_osg__Node_t_t", "osg::NodeList *|std::vector< ref_ptr< osg::Node > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t", "osg::StateSet::TextureModeList *|std::vector< std::map< GLenum,unsigned int > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t", "osg::StateSet::TextureAttributeList *|std::vector< std::map< std::pair< enum osg::StateAttribute::Type,unsigned int >,std::pair< ref_ptr< osg::StateAttribute >,unsigned int > > > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_std__string_t", "osg::Node::DescriptionList *|std::vector< std::string > *", nullptr, nullptr, nullptr, 0},
    {"_p_std__vectorT_std__vectorT_osg__Node_p_t_t", "osg::NodePathList *|std::vector< std::vector< osg::Node * > > *", nullptr, nullptr, nullptr, 0},
    {"_p_unsigned_int", "unsigned int *", nullptr, nullptr, nullptr, 0},
    {"_p_value_type", "value_type *", nullptr, nullptr, nullptr, 0},
};

constexpr swig_type_info *T(int i) { return &swig_type_initial[i]; }

swig_cast_info cast_p_AttributeList[] = {{T(ty::p_AttributeList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_BufferAttachmentMap[] = {{T(ty::p_BufferAttachmentMap), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_Callback[] = {{T(ty::p_Callback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_ClipPlaneList[] = {{T(ty::p_ClipPlaneList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_CopyFlags[] = {{T(ty::p_CopyFlags), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_DefineList[] = {{T(ty::p_DefineList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_DefinePair[] = {{T(ty::p_DefinePair), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_DescriptionList[] = {{T(ty::p_DescriptionList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_GLMode[] = {{T(ty::p_GLMode), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_GLModeValue[] = {{T(ty::p_GLModeValue), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_GLbitfield[] = {{T(ty::p_GLbitfield), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_GLenum[] = {{T(ty::p_GLenum), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_ImplicitBufferAttachmentMask[] = {{T(ty::p_ImplicitBufferAttachmentMask), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_ModeList[] = {{T(ty::p_ModeList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_NodeMask[] = {{T(ty::p_NodeMask), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_OpenThreads__Affinity[] = {{T(ty::p_OpenThreads__Affinity), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_OpenThreads__Mutex[] = {{T(ty::p_OpenThreads__Mutex), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_OverrideValue[] = {{T(ty::p_OverrideValue), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_ParentList[] = {{T(ty::p_ParentList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_RefAttributePair[] = {{T(ty::p_RefAttributePair), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_RefUniformPair[] = {{T(ty::p_RefUniformPair), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_TextureAttributeList[] = {{T(ty::p_TextureAttributeList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_TextureModeList[] = {{T(ty::p_TextureModeList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_TypeMemberPair[] = {{T(ty::p_TypeMemberPair), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_UniformList[] = {{T(ty::p_UniformList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_ValueList[] = {{T(ty::p_ValueList), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_Vec3_type[] = {{T(ty::p_Vec3_type), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_Vec4_type[] = {{T(ty::p_Vec4_type), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_char[] = {{T(ty::p_char), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_double[] = {{T(ty::p_double), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_float[] = {{T(ty::p_float), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osgTerrain__Terrain[] = {{T(ty::p_osgTerrain__Terrain), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osgUtil__SmoothingVisitor[] = {{T(ty::p_osgUtil__SmoothingVisitor), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Array[] = {{T(ty::p_osg__Array), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__AutoTransform[] = {{T(ty::p_osg__AutoTransform), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__BoundingBoxImplT_osg__Vec3d_t[] = {{T(ty::p_osg__BoundingBoxImplT_osg__Vec3d_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__BoundingBoxImplT_osg__Vec3f_t[] = {{T(ty::p_osg__BoundingBoxImplT_osg__Vec3f_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__BoundingSphereImplT_osg__Vec3d_t[] = {{T(ty::p_osg__BoundingSphereImplT_osg__Vec3d_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__BoundingSphereImplT_osg__Vec3f_t[] = {{T(ty::p_osg__BoundingSphereImplT_osg__Vec3f_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Callback[] = {{T(ty::p_osg__Callback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__CallbackObject[] = {{T(ty::p_osg__CallbackObject), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Camera[] = {{T(ty::p_osg__Camera), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__CameraRenderOrderSortOp[] = {{T(ty::p_osg__CameraRenderOrderSortOp), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Camera__DrawCallback[] = {{T(ty::p_osg__Camera__DrawCallback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__ClipNode[] = {{T(ty::p_osg__ClipNode), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__ClipPlane[] = {{T(ty::p_osg__ClipPlane), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__ColorMask[] = {{T(ty::p_osg__ColorMask), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__CopyOp[] = {{T(ty::p_osg__CopyOp), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__DeleteHandler[] = {{T(ty::p_osg__DeleteHandler), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__DisplaySettings[] = {{T(ty::p_osg__DisplaySettings), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Drawable[] = {{T(ty::p_osg__Drawable), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__DummyObject[] = {{T(ty::p_osg__DummyObject), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Fog[] = {{T(ty::p_osg__Fog), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Geode[] = {{T(ty::p_osg__Geode), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Geometry[] = {{T(ty::p_osg__Geometry), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__GraphicsOperation[] = {{T(ty::p_osg__GraphicsOperation), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Group[] = {
    {T(ty::p_osg__Group), nullptr, nullptr, nullptr},
    {T(ty::p_osg__AutoTransform), upcast<osg::AutoTransform, osg::Group>, nullptr, nullptr},
    {T(ty::p_osg__ClipNode), upcast<osg::ClipNode, osg::Group>, nullptr, nullptr},
    {T(ty::p_osg__Geode), upcast<osg::Geode, osg::Group>, nullptr, nullptr},
    {T(ty::p_osg__MatrixTransform), upcast<osg::MatrixTransform, osg::Group>, nullptr, nullptr},
    {T(ty::p_osg__PositionAttitudeTransform), upcast<osg::PositionAttitudeTransform, osg::Group>, nullptr, nullptr},
    {T(ty::p_osg__Switch), upcast<osg::Switch, osg::Group>, nullptr, nullptr},
    {T(ty::p_osg__Transform), upcast<osg::Transform, osg::Group>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Image[] = {{T(ty::p_osg__Image), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__MatrixTransform[] = {{T(ty::p_osg__MatrixTransform), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Matrixd[] = {
    {T(ty::p_osg__Matrixd), nullptr, nullptr, nullptr},
    {T(ty::p_osg__RefMatrixd), upcast<osg::RefMatrixd, osg::Matrixd>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Matrixf[] = {
    {T(ty::p_osg__Matrixf), nullptr, nullptr, nullptr},
    {T(ty::p_osg__RefMatrixf), upcast<osg::RefMatrixf, osg::Matrixf>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Node[] = {
    {T(ty::p_osg__Node), nullptr, nullptr, nullptr},
    {T(ty::p_osg__AutoTransform), upcast<osg::AutoTransform, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__ClipNode), upcast<osg::ClipNode, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__Geode), upcast<osg::Geode, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__Group), upcast<osg::Group, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__MatrixTransform), upcast<osg::MatrixTransform, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__PositionAttitudeTransform), upcast<osg::PositionAttitudeTransform, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__Switch), upcast<osg::Switch, osg::Node>, nullptr, nullptr},
    {T(ty::p_osg__Transform), upcast<osg::Transform, osg::Node>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__NodeVisitor[] = {
    {T(ty::p_osg__NodeVisitor), nullptr, nullptr, nullptr},
    {T(ty::p_osgUtil__SmoothingVisitor), upcast<osgUtil::SmoothingVisitor, osg::NodeVisitor>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Node__ComputeBoundingSphereCallback[] = {{T(ty::p_osg__Node__ComputeBoundingSphereCallback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__NotifyHandler[] = {
    {T(ty::p_osg__NotifyHandler), nullptr, nullptr, nullptr},
    {T(ty::p_osg__StandardNotifyHandler), upcast<osg::StandardNotifyHandler, osg::NotifyHandler>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Object[] = {
    {T(ty::p_osg__Object), nullptr, nullptr, nullptr},
    {T(ty::p_osg__AutoTransform), upcast<osg::AutoTransform, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__ClipNode), upcast<osg::ClipNode, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__ClipPlane), upcast<osg::ClipPlane, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__ColorMask), upcast<osg::ColorMask, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__DummyObject), upcast<osg::DummyObject, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Fog), upcast<osg::Fog, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Geode), upcast<osg::Geode, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Group), upcast<osg::Group, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__MatrixTransform), upcast<osg::MatrixTransform, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Node), upcast<osg::Node, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__PositionAttitudeTransform), upcast<osg::PositionAttitudeTransform, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__StateAttribute), upcast<osg::StateAttribute, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__StateSet), upcast<osg::StateSet, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Switch), upcast<osg::Switch, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Transform), upcast<osg::Transform, osg::Object>, nullptr, nullptr},
    {T(ty::p_osg__Viewport), upcast<osg::Viewport, osg::Object>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Observer[] = {{T(ty::p_osg__Observer), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__ObserverSet[] = {{T(ty::p_osg__ObserverSet), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Plane[] = {{T(ty::p_osg__Plane), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__PositionAttitudeTransform[] = {{T(ty::p_osg__PositionAttitudeTransform), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__PrimitiveSet[] = {{T(ty::p_osg__PrimitiveSet), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Quat[] = {{T(ty::p_osg__Quat), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__RefMatrixd[] = {{T(ty::p_osg__RefMatrixd), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__RefMatrixf[] = {{T(ty::p_osg__RefMatrixf), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Referenced[] = {
    {T(ty::p_osg__Referenced), nullptr, nullptr, nullptr},
    {T(ty::p_osg__AutoTransform), upcast<osg::AutoTransform, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__ClipNode), upcast<osg::ClipNode, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__ClipPlane), upcast<osg::ClipPlane, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__ColorMask), upcast<osg::ColorMask, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__DummyObject), upcast<osg::DummyObject, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Fog), upcast<osg::Fog, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Geode), upcast<osg::Geode, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Group), upcast<osg::Group, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__MatrixTransform), upcast<osg::MatrixTransform, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Node), upcast<osg::Node, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__NotifyHandler), upcast<osg::NotifyHandler, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Object), upcast<osg::Object, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__PositionAttitudeTransform), upcast<osg::PositionAttitudeTransform, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__StandardNotifyHandler), upcast<osg::StandardNotifyHandler, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__StateAttribute), upcast<osg::StateAttribute, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__StateSet), upcast<osg::StateSet, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Switch), upcast<osg::Switch, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Transform), upcast<osg::Transform, osg::Referenced>, nullptr, nullptr},
    {T(ty::p_osg__Viewport), upcast<osg::Viewport, osg::Referenced>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__RenderInfo[] = {{T(ty::p_osg__RenderInfo), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Shape[] = {{T(ty::p_osg__Shape), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__StandardNotifyHandler[] = {{T(ty::p_osg__StandardNotifyHandler), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__State[] = {{T(ty::p_osg__State), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__StateAttribute[] = {
    {T(ty::p_osg__StateAttribute), nullptr, nullptr, nullptr},
    {T(ty::p_osg__ClipPlane), upcast<osg::ClipPlane, osg::StateAttribute>, nullptr, nullptr},
    {T(ty::p_osg__ColorMask), upcast<osg::ColorMask, osg::StateAttribute>, nullptr, nullptr},
    {T(ty::p_osg__Fog), upcast<osg::Fog, osg::StateAttribute>, nullptr, nullptr},
    {T(ty::p_osg__Viewport), upcast<osg::Viewport, osg::StateAttribute>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__StateAttributeCallback[] = {{T(ty::p_osg__StateAttributeCallback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__StateAttribute__ModeUsage[] = {{T(ty::p_osg__StateAttribute__ModeUsage), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__StateSet[] = {{T(ty::p_osg__StateSet), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__StateSet__Callback[] = {{T(ty::p_osg__StateSet__Callback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Stats[] = {{T(ty::p_osg__Stats), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Switch[] = {{T(ty::p_osg__Switch), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Texture[] = {{T(ty::p_osg__Texture), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Texture2D[] = {{T(ty::p_osg__Texture2D), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Texture2D__SubloadCallback[] = {{T(ty::p_osg__Texture2D__SubloadCallback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Transform[] = {
    {T(ty::p_osg__Transform), nullptr, nullptr, nullptr},
    {T(ty::p_osg__AutoTransform), upcast<osg::AutoTransform, osg::Transform>, nullptr, nullptr},
    {T(ty::p_osg__MatrixTransform), upcast<osg::MatrixTransform, osg::Transform>, nullptr, nullptr},
    {T(ty::p_osg__PositionAttitudeTransform), upcast<osg::PositionAttitudeTransform, osg::Transform>, nullptr, nullptr},
    {},
};
swig_cast_info cast_p_osg__Uniform[] = {{T(ty::p_osg__Uniform), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__UniformCallback[] = {{T(ty::p_osg__UniformCallback), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Uniform__Type[] = {{T(ty::p_osg__Uniform__Type), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__UserDataContainer[] = {{T(ty::p_osg__UserDataContainer), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__ValueObject[] = {{T(ty::p_osg__ValueObject), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Vec2d[] = {{T(ty::p_osg__Vec2d), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Vec2f[] = {{T(ty::p_osg__Vec2f), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Vec3d[] = {{T(ty::p_osg__Vec3d), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Vec3f[] = {{T(ty::p_osg__Vec3f), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Vec4d[] = {{T(ty::p_osg__Vec4d), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Vec4f[] = {{T(ty::p_osg__Vec4f), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__View[] = {{T(ty::p_osg__View), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_osg__Viewport[] = {{T(ty::p_osg__Viewport), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_other_value_type[] = {{T(ty::p_other_value_type), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__mapT_GLenum_unsigned_int_t[] = {{T(ty::p_std__mapT_GLenum_unsigned_int_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t[] = {{T(ty::p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t[] = {{T(ty::p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t[] = {{T(ty::p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t[] = {{T(ty::p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__ostream[] = {{T(ty::p_std__ostream), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t[] = {{T(ty::p_std__pairT_osg__StateAttribute__Type_unsigned_int_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t[] = {{T(ty::p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t[] = {{T(ty::p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__pairT_std__string_unsigned_int_t[] = {{T(ty::p_std__pairT_std__string_unsigned_int_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__string[] = {{T(ty::p_std__string), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_bool_t[] = {{T(ty::p_std__vectorT_bool_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_osg__Group_p_t[] = {{T(ty::p_std__vectorT_osg__Group_p_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_osg__Matrixd_t[] = {{T(ty::p_std__vectorT_osg__Matrixd_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_osg__Node_p_t[] = {{T(ty::p_std__vectorT_osg__Node_p_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_osg__StateSet_p_t[] = {{T(ty::p_std__vectorT_osg__StateSet_p_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_osg__Vec3d_t[] = {{T(ty::p_std__vectorT_osg__Vec3d_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_osg__Vec3f_t[] = {{T(ty::p_std__vectorT_osg__Vec3f_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t[] = {{T(ty::p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_ref_ptrT_osg__Node_t_t[] = {{T(ty::p_std__vectorT_ref_ptrT_osg__Node_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t[] = {{T(ty::p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t[] = {{T(ty::p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_std__string_t[] = {{T(ty::p_std__vectorT_std__string_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_std__vectorT_std__vectorT_osg__Node_p_t_t[] = {{T(ty::p_std__vectorT_std__vectorT_osg__Node_p_t_t), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_unsigned_int[] = {{T(ty::p_unsigned_int), nullptr, nullptr, nullptr}, {}};
swig_cast_info cast_p_value_type[] = {{T(ty::p_value_type), nullptr, nullptr, nullptr}, {}};

}  // namespace

swig_type_info *swig_types[ty::count + 1];
swig_type_info *swig_type_initial_ptrs[] = {
    T(ty::p_AttributeList),
    T(ty::p_BufferAttachmentMap),
    T(ty::p_Callback),
    T(ty::p_ClipPlaneList),
    T(ty::p_CopyFlags),
    T(ty::p_DefineList),
    T(ty::p_DefinePair),
    T(ty::p_DescriptionList),
    T(ty::p_GLMode),
    T(ty::p_GLModeValue),
    T(ty::p_GLbitfield),
    T(ty::p_GLenum),
    T(ty::p_ImplicitBufferAttachmentMask),
    T(ty::p_ModeList),
    T(ty::p_NodeMask),
    T(ty::p_OpenThreads__Affinity),
    T(ty::p_OpenThreads__Mutex),
    T(ty::p_OverrideValue),
    T(ty::p_ParentList),
    T(ty::p_RefAttributePair),
    T(ty::p_RefUniformPair),
    T(ty::p_TextureAttributeList),
    T(ty::p_TextureModeList),
    T(ty::p_TypeMemberPair),
    T(ty::p_UniformList),
    T(ty::p_ValueList),
    T(ty::p_Vec3_type),
    T(ty::p_Vec4_type),
    T(ty::p_char),
    T(ty::p_double),
    T(ty::p_float),
    T(ty::p_osgTerrain__Terrain),
    T(ty::p_osgUtil__SmoothingVisitor),
    T(ty::p_osg__Array),
    T(ty::p_osg__AutoTransform),
    T(ty::p_osg__BoundingBoxImplT_osg__Vec3d_t),
    T(ty::p_osg__BoundingBoxImplT_osg__Vec3f_t),
    T(ty::p_osg__BoundingSphereImplT_osg__Vec3d_t),
    T(ty::p_osg__BoundingSphereImplT_osg__Vec3f_t),
    T(ty::p_osg__Callback),
    T(ty::p_osg__CallbackObject),
    T(ty::p_osg__Camera),
    T(ty::p_osg__CameraRenderOrderSortOp),
    T(ty::p_osg__Camera__DrawCallback),
    T(ty::p_osg__ClipNode),
    T(ty::p_osg__ClipPlane),
    T(ty::p_osg__ColorMask),
    T(ty::p_osg__CopyOp),
    T(ty::p_osg__DeleteHandler),
    T(ty::p_osg__DisplaySettings),
    T(ty::p_osg__Drawable),
    T(ty::p_osg__DummyObject),
    T(ty::p_osg__Fog),
    T(ty::p_osg__Geode),
    T(ty::p_osg__Geometry),
    T(ty::p_osg__GraphicsOperation),
    T(ty::p_osg__Group),
    T(ty::p_osg__Image),
    T(ty::p_osg__MatrixTransform),
    T(ty::p_osg__Matrixd),
    T(ty::p_osg__Matrixf),
    T(ty::p_osg__Node),
    T(ty::p_osg__NodeVisitor),
    T(ty::p_osg__Node__ComputeBoundingSphereCallback),
    T(ty::p_osg__NotifyHandler),
    T(ty::p_osg__Object),
    T(ty::p_osg__Observer),
    T(ty::p_osg__ObserverSet),
    T(ty::p_osg__Plane),
    T(ty::p_osg__PositionAttitudeTransform),
    T(ty::p_osg__PrimitiveSet),
    T(ty::p_osg__Quat),
    T(ty::p_osg__RefMatrixd),
    T(ty::p_osg__RefMatrixf),
    T(ty::p_osg__Referenced),
    T(ty::p_osg__RenderInfo),
    T(ty::p_osg__Shape),
    T(ty::p_osg__StandardNotifyHandler),
    T(ty::p_osg__State),
    T(ty::p_osg__StateAttribute),
    T(ty::p_osg__StateAttributeCallback),
    T(ty::p_osg__StateAttribute__ModeUsage),
    T(ty::p_osg__StateSet),
    T(ty::p_osg__StateSet__Callback),
    T(ty::p_osg__Stats),
    T(ty::p_osg__Switch),
    T(ty::p_osg__Texture),
    T(ty::p_osg__Texture2D),
    T(ty::p_osg__Texture2D__SubloadCallback),
    T(ty::p_osg__Transform),
    T(ty::p_osg__Uniform),
    T(ty::p_osg__UniformCallback),
    T(ty::p_osg__Uniform__Type),
    T(ty::p_osg__UserDataContainer),
    T(ty::p_osg__ValueObject),
    T(ty::p_osg__Vec2d),
    T(ty::p_osg__Vec2f),
    T(ty::p_osg__Vec3d),
    T(ty::p_osg__Vec3f),
    T(ty::p_osg__Vec4d),
    T(ty::p_osg__Vec4f),
    T(ty::p_osg__View),
    T(ty::p_osg__Viewport),
    T(ty::p_other_value_type),
    T(ty::p_std__mapT_GLenum_unsigned_int_t),
    T(ty::p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t),
    T(ty::p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t),
    T(ty::p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t),
    T(ty::p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t),
    T(ty::p_std__ostream),
    T(ty::p_std__pairT_osg__StateAttribute__Type_unsigned_int_t),
    T(ty::p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t),
    T(ty::p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t),
    T(ty::p_std__pairT_std__string_unsigned_int_t),
    T(ty::p_std__string),
    T(ty::p_std__vectorT_bool_t),
    T(ty::p_std__vectorT_osg__Group_p_t),
    T(ty::p_std__vectorT_osg__Matrixd_t),
    T(ty::p_std__vectorT_osg__Node_p_t),
    T(ty::p_std__vectorT_osg__StateSet_p_t),
    T(ty::p_std__vectorT_osg__Vec3d_t),
    T(ty::p_std__vectorT_osg__Vec3f_t),
    T(ty::p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t),
    T(ty::p_std__vectorT_ref_ptrT_osg__Node_t_t),
    T(ty::p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t),
    T(ty::p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t),
    T(ty::p_std__vectorT_std__string_t),
    T(ty::p_std__vectorT_std__vectorT_osg__Node_p_t_t),
    T(ty::p_unsigned_int),
    T(ty::p_value_type),
};
swig_cast_info *swig_cast_initial[] = {
    cast_p_AttributeList,
    cast_p_BufferAttachmentMap,
    cast_p_Callback,
    cast_p_ClipPlaneList,
    cast_p_CopyFlags,
    cast_p_DefineList,
    cast_p_DefinePair,
    cast_p_DescriptionList,
    cast_p_GLMode,
    cast_p_GLModeValue,
    cast_p_GLbitfield,
    cast_p_GLenum,
    cast_p_ImplicitBufferAttachmentMask,
    cast_p_ModeList,
    cast_p_NodeMask,
    cast_p_OpenThreads__Affinity,
    cast_p_OpenThreads__Mutex,
    cast_p_OverrideValue,
    cast_p_ParentList,
    cast_p_RefAttributePair,
    cast_p_RefUniformPair,
    cast_p_TextureAttributeList,
    cast_p_TextureModeList,
    cast_p_TypeMemberPair,
    cast_p_UniformList,
    cast_p_ValueList,
    cast_p_Vec3_type,
    cast_p_Vec4_type,
    cast_p_char,
    cast_p_double,
    cast_p_float,
    cast_p_osgTerrain__Terrain,
    cast_p_osgUtil__SmoothingVisitor,
    cast_p_osg__Array,
    cast_p_osg__AutoTransform,
    cast_p_osg__BoundingBoxImplT_osg__Vec3d_t,
    cast_p_osg__BoundingBoxImplT_osg__Vec3f_t,
    cast_p_osg__BoundingSphereImplT_osg__Vec3d_t,
    cast_p_osg__BoundingSphereImplT_osg__Vec3f_t,
    cast_p_osg__Callback,
    cast_p_osg__CallbackObject,
    cast_p_osg__Camera,
    cast_p_osg__CameraRenderOrderSortOp,
    cast_p_osg__Camera__DrawCallback,
    cast_p_osg__ClipNode,
    cast_p_osg__ClipPlane,
    cast_p_osg__ColorMask,
    cast_p_osg__CopyOp,
    cast_p_osg__DeleteHandler,
    cast_p_osg__DisplaySettings,
    cast_p_osg__Drawable,
    cast_p_osg__DummyObject,
    cast_p_osg__Fog,
    cast_p_osg__Geode,
    cast_p_osg__Geometry,
    cast_p_osg__GraphicsOperation,
    cast_p_osg__Group,
    cast_p_osg__Image,
    cast_p_osg__MatrixTransform,
    cast_p_osg__Matrixd,
    cast_p_osg__Matrixf,
    cast_p_osg__Node,
    cast_p_osg__NodeVisitor,
    cast_p_osg__Node__ComputeBoundingSphereCallback,
    cast_p_osg__NotifyHandler,
    cast_p_osg__Object,
    cast_p_osg__Observer,
    cast_p_osg__ObserverSet,
    cast_p_osg__Plane,
    cast_p_osg__PositionAttitudeTransform,
    cast_p_osg__PrimitiveSet,
    cast_p_osg__Quat,
    cast_p_osg__RefMatrixd,
    cast_p_osg__RefMatrixf,
    cast_p_osg__Referenced,
    cast_p_osg__RenderInfo,
    cast_p_osg__Shape,
    cast_p_osg__StandardNotifyHandler,
    cast_p_osg__State,
    cast_p_osg__StateAttribute,
    cast_p_osg__StateAttributeCallback,
    cast_p_osg__StateAttribute__ModeUsage,
    cast_p_osg__StateSet,
    cast_p_osg__StateSet__Callback,
    cast_p_osg__Stats,
    cast_p_osg__Switch,
    cast_p_osg__Texture,
    cast_p_osg__Texture2D,
    cast_p_osg__Texture2D__SubloadCallback,
    cast_p_osg__Transform,
    cast_p_osg__Uniform,
    cast_p_osg__UniformCallback,
    cast_p_osg__Uniform__Type,
    cast_p_osg__UserDataContainer,
    cast_p_osg__ValueObject,
    cast_p_osg__Vec2d,
    cast_p_osg__Vec2f,
    cast_p_osg__Vec3d,
    cast_p_osg__Vec3f,
    cast_p_osg__Vec4d,
    cast_p_osg__Vec4f,
    cast_p_osg__View,
    cast_p_osg__Viewport,
    cast_p_other_value_type,
    cast_p_std__mapT_GLenum_unsigned_int_t,
    cast_p_std__mapT_osg__Camera__BufferComponent_osg__Camera__Attachment_t,
    cast_p_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t,
    cast_p_std__mapT_std__string_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t_t,
    cast_p_std__mapT_std__string_std__pairT_std__string_unsigned_int_t_t,
    cast_p_std__ostream,
    cast_p_std__pairT_osg__StateAttribute__Type_unsigned_int_t,
    cast_p_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t,
    cast_p_std__pairT_ref_ptrT_osg__Uniform_t_unsigned_int_t,
    cast_p_std__pairT_std__string_unsigned_int_t,
    cast_p_std__string,
    cast_p_std__vectorT_bool_t,
    cast_p_std__vectorT_osg__Group_p_t,
    cast_p_std__vectorT_osg__Matrixd_t,
    cast_p_std__vectorT_osg__Node_p_t,
    cast_p_std__vectorT_osg__StateSet_p_t,
    cast_p_std__vectorT_osg__Vec3d_t,
    cast_p_std__vectorT_osg__Vec3f_t,
    cast_p_std__vectorT_ref_ptrT_osg__ClipPlane_t_t,
    cast_p_std__vectorT_ref_ptrT_osg__Node_t_t,
    cast_p_std__vectorT_std__mapT_GLenum_unsigned_int_t_t,
    cast_p_std__vectorT_std__mapT_std__pairT_osg__StateAttribute__Type_unsigned_int_t_std__pairT_ref_ptrT_osg__StateAttribute_t_unsigned_int_t_t_t,
    cast_p_std__vectorT_std__string_t,
    cast_p_std__vectorT_std__vectorT_osg__Node_p_t_t,
    cast_p_unsigned_int,
    cast_p_value_type,
};
swig_module_info swig_module = {swig_types, ty::count, nullptr, nullptr, nullptr, nullptr};
