// What a module of the family is beyond its rows: its method table with OSG's own comments,
// its integer constants and its type table, as one record (module_tables(), which each module
// defines) that the build-time describer reads; and the entry of a sibling module.
#pragma once
#include "wrap/table.h"

#include <algorithm>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct IntConstant {
    const char *name;
    long value;
};

namespace wrap {

using Constants = std::vector<IntConstant>;

// An enumerator as the module's integer constant, read back signed as _osg's are.
template <class E>
constexpr IntConstant constant(const char *name, E value) {
    return {name, static_cast<long>(static_cast<int>(value))};
}

struct ModuleTables {
    const char *name;
    PyMethodDef *methods;
    std::vector<std::pair<const IntConstant *, std::size_t>> constants;  // in installation order
    swig_type_info *const *types;  // the static records, sorted by name
    swig_cast_info *const *casts;  // their cast lists
    std::size_t type_count;
};

const ModuleTables &module_tables();

// Each row's docstring starts as its prototypes; OSG's comments on the members they name
// follow. `comments` is the table tools/gen_docs.py writes, sorted by member.
template <class Comment, std::size_t N>
void add_comments(Table &table, const Comment (&comments)[N], const char *const *texts) {
    static std::deque<std::string> docs;
    auto comment_of = [&](std::string_view member) -> const char * {
        auto *at = std::lower_bound(std::begin(comments), std::end(comments), member,
                                    [](const Comment &e, std::string_view m) { return e.member < m; });
        return at != std::end(comments) && at->member == member ? texts[at->text] : nullptr;
    };
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

inline void install_constants(PyObject *dict, const IntConstant *table, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) SWIG_Python_SetConstant(dict, table[i].name, PyLong_FromLong(table[i].value));
}

// The entry of a sibling module, in the order _osg's own entry brings the runtime up: the
// proxy types, the module, the join into the ring (join links the module's type table),
// then the constants.
inline PyObject *init_module(PyModuleDef &def, void (*join)()) {
    const ModuleTables &m = module_tables();
    SWIG_This();
    SWIG_Python_TypeCache();
    SwigPyPacked_type();
    SwigPyObject_type();
    def.m_methods = m.methods;
    PyObject *module = PyModule_Create2(&def, 1013);
    if (!module) return nullptr;
    swig_module.clientdata = fast_table();
    join();
    SWIG_Python_HoldSharedCapsule();
    PyObject *dict = PyModule_GetDict(module);
    for (auto [table, count] : m.constants) install_constants(dict, table, count);
    return module;
}

}  // namespace wrap
