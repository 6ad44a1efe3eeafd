// The entry of a sibling module, which is its name, its type table, its docstring and its
// families of rows; everything else is the same for every sibling:
//
//   WRAP_SIBLING(_osgdraw, draw::Types, "OpenSceneGraph's geometry...", add_array_rows, add_image_rows)
//
// defines the module's runtime records (swig_types, swig_module), its tables for the build-time
// describer (wrap::module_tables) and PyInit__osgdraw. Include it after the module's docs.inc.
#pragma once
#include "wrap/module.h"

#include <initializer_list>

namespace wrap {

using Family = void (*)(Table &, Constants &);

// The method table of the families' rows in order, with OSG's comments, and their constants;
// built once, on the first call (the module's import, or the describer).
template <class Types, class Comment, std::size_t N>
const ModuleTables &sibling_tables(const char *name, std::initializer_list<Family> families,
                                   const Comment (&comments)[N], const char *const *texts) {
    static Constants constants;
    static Table methods;
    static const ModuleTables tables = [&] {
        for (Family add : families) add(methods, constants);
        add_comments(methods, comments, texts);
        methods.push_back({nullptr, nullptr, 0, nullptr});
        ModuleTables t{name, methods.data(), {}, Types::sorted_types, Types::sorted_casts, Types::count};
        if (!constants.empty()) t.constants.emplace_back(constants.data(), constants.size());
        return t;
    }();
    Types::build();
    return tables;
}

}  // namespace wrap

#define WRAP_SIBLING(NAME, TYPES, DOC, ...)                                                                    \
    swig_type_info *swig_types[TYPES::count + 1];                                                           \
    swig_module_info swig_module = {swig_types, TYPES::count, nullptr, nullptr, nullptr, nullptr};          \
    const wrap::ModuleTables &wrap::module_tables() {                                                       \
        return sibling_tables<TYPES>(#NAME, {__VA_ARGS__}, osg_comments, osg_comment_texts);                \
    }                                                                                                       \
    PyMODINIT_FUNC PyInit_##NAME() {                                                                        \
        static PyModuleDef def = {PyModuleDef_HEAD_INIT, #NAME, DOC, -1, nullptr, nullptr, nullptr, nullptr, nullptr}; \
        return wrap::init_module(def, [] { TYPES::join(swig_module); });                                    \
    }
