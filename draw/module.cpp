// The entry PyInit__osgdraw, on the same runtime and engine as _osg.
#include "draw/bind.h"

#include "docs.inc"

swig_type_info *swig_types[draw::Types::count + 1];
swig_module_info swig_module = {swig_types, draw::Types::count, nullptr, nullptr, nullptr, nullptr};

namespace {

wrap::Constants constants;

std::vector<PyMethodDef> build() {
    wrap::Table t;
    for (auto add : {add_array_rows, add_primitive_rows, add_geometry_rows, add_shape_rows, add_lighting_rows,
                     add_image_rows, add_view_rows})
        add(t, constants);
    wrap::add_comments(t, osg_comments, osg_comment_texts);
    t.push_back({nullptr, nullptr, 0, nullptr});
    return t;
}

std::vector<PyMethodDef> methods = build();

}  // namespace

const wrap::ModuleTables &wrap::module_tables() {
    static const ModuleTables tables{"_osgdraw", methods.data(), {{constants.data(), constants.size()}},
                                     draw::Types::sorted_types, draw::Types::sorted_casts, draw::Types::count};
    draw::Types::build();
    return tables;
}

PyMODINIT_FUNC PyInit__osgdraw() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgdraw",
                              "OpenSceneGraph's geometry, arrays, primitive sets, shapes, materials, lights and images.",
                              -1, nullptr, nullptr, nullptr, nullptr, nullptr};
    return wrap::init_module(def, [] { draw::Types::join(swig_module); });
}
