// SwigMethods: the module's flat functions, in table order, ending with the null entry.
#include "module/constants.h"
#include "module/methods.h"
#include "wrap/osg.h"

#include "docs.inc"
#include "runtime/type_table.h"

namespace {

std::vector<PyMethodDef> build() {
    wrap::Table t;
    // Classes in the order they register; each family appends its rows in its own order.
    add_referenced_rows(t);
    add_copyop_rows(t);
    add_vector_rows(t);
    add_quat_rows(t);
    add_matrix_rows(t);
    add_operator_rows(t);
    add_notify_rows(t);
    add_object_rows(t);
    add_dummy_object_rows(t);
    add_node_rows(t);
    add_texture2d_rows(t);
    add_state_set_rows(t);
    add_state_attribute_rows(t);
    add_color_mask_rows(t);
    add_viewport_rows(t);
    add_group_rows(t);
    add_camera_rows(t);
    add_camera_render_order_sort_op_rows(t);
    add_switch_rows(t);
    add_smoothing_visitor_rows(t);
    add_transform_rows(t);
    add_geode_rows(t);
    add_matrix_transform_rows(t);
    add_auto_transform_rows(t);
    add_position_attitude_transform_rows(t);
    add_plane_rows(t);
    add_clip_plane_rows(t);
    add_clip_node_rows(t);
    add_fog_rows(t);
    wrap::add_comments(t, osg_comments, osg_comment_texts);
    t.push_back({nullptr, nullptr, 0, nullptr});
    return t;
}

}  // namespace

// Filled when the shared object loads; the module definition points at it for good.
static std::vector<PyMethodDef> method_table = build();
PyMethodDef *const SwigMethods = method_table.data();

const wrap::ModuleTables &wrap::module_tables() {
    static const ModuleTables tables{"_osg", SwigMethods,
                                     {{int_constants_before_cvar, int_constants_before_cvar_count},
                                      {int_constants_after_cvar, int_constants_after_cvar_count}},
                                     swig_type_initial_ptrs, swig_cast_initial, ty::count};
    return tables;
}
