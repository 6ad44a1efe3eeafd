// What every family of _osg includes: the engine over _osg's own type table, and the
// families' tables in the order their rows appear in the method table.
#pragma once
#include "wrap/osg_types.h"
#include "wrap/table.h"

// The families, in the order their rows appear in the method table.
void add_referenced_rows(wrap::Table &t);
void add_copyop_rows(wrap::Table &t);
void add_vector_rows(wrap::Table &t);
void add_quat_rows(wrap::Table &t);
void add_matrix_rows(wrap::Table &t);
void add_operator_rows(wrap::Table &t);
void add_plane_rows(wrap::Table &t);
void add_notify_rows(wrap::Table &t);
void add_object_rows(wrap::Table &t);
void add_dummy_object_rows(wrap::Table &t);
void add_node_rows(wrap::Table &t);
void add_group_rows(wrap::Table &t);
void add_switch_rows(wrap::Table &t);
void add_smoothing_visitor_rows(wrap::Table &t);
void add_transform_rows(wrap::Table &t);
void add_geode_rows(wrap::Table &t);
void add_matrix_transform_rows(wrap::Table &t);
void add_auto_transform_rows(wrap::Table &t);
void add_position_attitude_transform_rows(wrap::Table &t);
void add_clip_node_rows(wrap::Table &t);
void add_texture2d_rows(wrap::Table &t);
void add_state_set_rows(wrap::Table &t);
void add_state_attribute_rows(wrap::Table &t);
void add_color_mask_rows(wrap::Table &t);
void add_viewport_rows(wrap::Table &t);
void add_clip_plane_rows(wrap::Table &t);
void add_fog_rows(wrap::Table &t);
void add_camera_rows(wrap::Table &t);
void add_camera_render_order_sort_op_rows(wrap::Table &t);
