// SwigMethods: the module's flat functions, in table order, ending with the null entry.
#include "module/methods.h"
#include "wrap/table.h"

using wrap::init_row;
using wrap::register_row;

// Classes whose functions are not bound yet contribute only their class hooks.
static void add_hook_rows(wrap::Table &t) {
    wrap::add(t, {
        register_row<ty::p_osg__Matrixd>("Matrixd_swigregister"),
        init_row("Matrixd_swiginit"),
        register_row<ty::p_osg__Matrixf>("Matrixf_swigregister"),
        init_row("Matrixf_swiginit"),
        register_row<ty::p_osg__RefMatrixd>("RefMatrixd_swigregister"),
        init_row("RefMatrixd_swiginit"),
        register_row<ty::p_osg__RefMatrixf>("RefMatrixf_swigregister"),
        init_row("RefMatrixf_swiginit"),
        register_row<ty::p_osg__Node>("Node_swigregister"),
        init_row("Node_swiginit"),
        register_row<ty::p_osg__Texture2D>("Texture2D_swigregister"),
        init_row("Texture2D_swiginit"),
        register_row<ty::p_osg__StateSet>("StateSet_swigregister"),
        init_row("StateSet_swiginit"),
        register_row<ty::p_osg__StateAttribute>("StateAttribute_swigregister"),
        register_row<ty::p_osg__ColorMask>("ColorMask_swigregister"),
        init_row("ColorMask_swiginit"),
        register_row<ty::p_osg__Viewport>("Viewport_swigregister"),
        init_row("Viewport_swiginit"),
        register_row<ty::p_osg__Group>("Group_swigregister"),
        init_row("Group_swiginit"),
        register_row<ty::p_osg__Camera>("Camera_swigregister"),
        init_row("Camera_swiginit"),
        register_row<ty::p_osg__CameraRenderOrderSortOp>("CameraRenderOrderSortOp_swigregister"),
        init_row("CameraRenderOrderSortOp_swiginit"),
        register_row<ty::p_osg__Switch>("Switch_swigregister"),
        init_row("Switch_swiginit"),
        register_row<ty::p_osgUtil__SmoothingVisitor>("SmoothingVisitor_swigregister"),
        init_row("SmoothingVisitor_swiginit"),
        register_row<ty::p_osg__Transform>("Transform_swigregister"),
        init_row("Transform_swiginit"),
        register_row<ty::p_osg__Geode>("Geode_swigregister"),
        init_row("Geode_swiginit"),
        register_row<ty::p_osg__MatrixTransform>("MatrixTransform_swigregister"),
        init_row("MatrixTransform_swiginit"),
        register_row<ty::p_osg__AutoTransform>("AutoTransform_swigregister"),
        init_row("AutoTransform_swiginit"),
        register_row<ty::p_osg__PositionAttitudeTransform>("PositionAttitudeTransform_swigregister"),
        init_row("PositionAttitudeTransform_swiginit"),
        register_row<ty::p_osg__Plane>("Plane_swigregister"),
        init_row("Plane_swiginit"),
        register_row<ty::p_osg__ClipPlane>("ClipPlane_swigregister"),
        init_row("ClipPlane_swiginit"),
        register_row<ty::p_osg__ClipNode>("ClipNode_swigregister"),
        init_row("ClipNode_swiginit"),
        register_row<ty::p_osg__Fog>("Fog_swigregister"),
        init_row("Fog_swiginit"),
    });
}

static std::vector<PyMethodDef> build() {
    wrap::Table t;
    add_referenced_rows(t);
    add_copyop_rows(t);
    add_vector_rows(t);
    add_quat_rows(t);
    add_notify_rows(t);
    add_object_rows(t);
    add_dummy_object_rows(t);
    add_hook_rows(t);
    t.push_back({nullptr, nullptr, 0, nullptr});
    return t;
}

// Filled when the shared object loads; the module definition points at it for good.
static std::vector<PyMethodDef> method_table = build();
PyMethodDef *const SwigMethods = method_table.data();
