// The entry PyInit__osgViewer, on the same runtime and engine as _osg.
#include "viewer/bind.h"

#include "docs.inc"

swig_type_info *swig_types[viewer::Types::count + 1];
swig_module_info swig_module = {swig_types, viewer::Types::count, nullptr, nullptr, nullptr, nullptr};

namespace {

wrap::Constants constants;

std::vector<PyMethodDef> build() {
    wrap::Table t;
    for (auto add : {add_viewer_rows, add_manipulator_rows, add_offscreen_rows}) add(t, constants);
    wrap::add_comments(t, osg_comments, osg_comment_texts);
    t.push_back({nullptr, nullptr, 0, nullptr});
    return t;
}

std::vector<PyMethodDef> methods = build();

}  // namespace

const wrap::ModuleTables &wrap::module_tables() {
    static const ModuleTables tables{"_osgViewer", methods.data(), {{constants.data(), constants.size()}},
                                     viewer::Types::sorted_types, viewer::Types::sorted_casts, viewer::Types::count};
    viewer::Types::build();
    return tables;
}

PyMODINIT_FUNC PyInit__osgViewer() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgViewer",
                              "OpenSceneGraph's viewer, its camera manipulators, and offscreen pictures.", -1, nullptr,
                              nullptr, nullptr, nullptr, nullptr};
    return wrap::init_module(def, [] { viewer::Types::join(swig_module); });
}
