// SwigMethods: the module's flat functions, in table order, ending with the null entry.
#include "module/methods.h"
#include "wrap/table.h"

#include "osg_docs.inc"

#include <cstring>
#include <deque>
#include <string>
#include <string_view>

namespace {

const char *comment_of(std::string_view member) {
    auto *end = std::end(osg_comments);
    auto *at = std::lower_bound(std::begin(osg_comments), end, member,
                                [](const auto &e, std::string_view m) { return e.member < m; });
    return at != end && at->member == member ? osg_comment_texts[at->text] : nullptr;
}

// Each row's docstring is its prototypes; OSG's comments on the members they name follow.
void add_comments(std::vector<PyMethodDef> &table) {
    static std::deque<std::string> docs;
    for (PyMethodDef &row : table) {
        if (!row.ml_doc) continue;
        std::string doc = row.ml_doc;
        std::vector<const char *> seen;
        for (std::string_view rest = row.ml_doc; !rest.empty();) {
            std::string_view line = rest.substr(0, rest.find('\n'));
            rest.remove_prefix(std::min(rest.size(), line.size() + 1));
            const char *comment = comment_of(line.substr(0, line.find('(')));
            if (comment && std::find(seen.begin(), seen.end(), comment) == seen.end()) {
                seen.push_back(comment);
                doc.append("\n\n").append(comment);
            }
        }
        if (!seen.empty()) row.ml_doc = docs.emplace_back(std::move(doc)).c_str();
    }
}

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
    add_comments(t);
    t.push_back({nullptr, nullptr, 0, nullptr});
    return t;
}

}  // namespace

// Filled when the shared object loads; the module definition points at it for good.
static std::vector<PyMethodDef> method_table = build();
PyMethodDef *const SwigMethods = method_table.data();
