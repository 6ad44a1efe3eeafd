// The entry PyInit__osgDB: OSG's file reading and writing, on the same runtime and engine as _osg.
#include "osgdb/bind.h"
#include "wrap/module.h"

#include "docs.inc"

swig_type_info *swig_types[osgdb::Types::count + 1];
swig_module_info swig_module = {swig_types, osgdb::Types::count, nullptr, nullptr, nullptr, nullptr};

namespace {

std::vector<PyMethodDef> build() {
    wrap::Table t;
    add_file_rows(t);
    wrap::add_comments(t, osg_comments, osg_comment_texts);
    t.push_back({nullptr, nullptr, 0, nullptr});
    return t;
}

std::vector<PyMethodDef> methods = build();

}  // namespace

const wrap::ModuleTables &wrap::module_tables() {
    static const ModuleTables tables{"_osgDB", methods.data(), {}, osgdb::Types::sorted_types, osgdb::Types::sorted_casts,
                                     osgdb::Types::count};
    osgdb::Types::build();
    return tables;
}

PyMODINIT_FUNC PyInit__osgDB() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgDB", "OpenSceneGraph's osgDB: reading and writing files.", -1,
                              nullptr, nullptr, nullptr, nullptr, nullptr};
    return wrap::init_module(def, [] { osgdb::Types::join(swig_module); });
}
