// <module>describe: a build-time module linked from a module's own objects (DESCRIBED names
// it, e.g. _osg). Its one function returns the module's method table as JSON: every row in
// table order with its calling convention, owning class, candidates, parameter and result
// kinds, plus the constants and the cast graph. Everything the generated layers know of a
// module comes from here.
#include "wrap/module.h"

#include <map>
#include <string>
#include <string_view>

namespace {

std::string quoted(std::string_view s) {
    std::string out = "\"";
    for (unsigned char c : s) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += (char)c;
        } else if (c == '\n') {
            out += "\\n";
        } else if (c < 0x20) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", c);
            out += buf;
        } else {
            out += (char)c;
        }
    }
    return out + "\"";
}

std::string type_name(int index) {
    return index < 0 ? "null" : quoted(wrap::module_tables().types[index]->name);
}

const char *convention(int flags) {
    return flags & METH_O ? "METH_O" : flags & METH_NOARGS ? "METH_NOARGS" : "METH_VARARGS";
}

void candidate(std::string &out, const wrap::CandidateInfo &c) {
    out += "{\"prototype\": " + quoted(c.prototype) + ", \"params\": [";
    for (std::size_t i = 0; i < c.count; ++i) {
        const wrap::ParamInfo &p = c.params[i];
        if (i) out += ", ";
        out += "{\"spelling\": " + quoted(p.spelling) + ", \"kind\": " + quoted(p.kind) +
               ", \"descriptor\": " + type_name(p.descriptor) + ", \"const\": " + (p.is_const ? "true" : "false") + "}";
    }
    out += "], \"result\": {\"kind\": " + quoted(c.result.kind) + ", \"descriptor\": " + type_name(c.result.descriptor) +
           ", \"own\": " + std::to_string(c.result.own) + "}}";
}

// The descriptor a class hook registers: _p_<namespace>__<Class>, or else the one class nested
// deeper of that name (osgDB::ReaderWriter::ReadResult's ReadResult).
std::string hook_descriptor(std::string_view cls) {
    const wrap::ModuleTables &tables = wrap::module_tables();
    std::string_view nested;
    int count = 0;
    for (std::size_t i = 0; i < tables.type_count; ++i) {
        std::string_view n = tables.types[i]->name;
        if (!n.starts_with("_p_") || !n.ends_with("__" + std::string(cls))) continue;
        if (n.find("__") == n.size() - cls.size() - 2) return quoted(n);
        nested = n;
        ++count;
    }
    return count == 1 ? quoted(nested) : "null";
}

PyObject *describe(PyObject *, PyObject *) {
    const wrap::ModuleTables &tables = wrap::module_tables();
    std::map<std::string_view, const wrap::RowInfo *> info;
    for (const wrap::RowInfo *r : wrap::described_rows()) info[r->name] = r;

    std::string out = "{\"rows\": [\n";
    for (PyMethodDef *m = tables.methods; m->ml_name; ++m) {
        std::string_view name = m->ml_name;
        if (m != tables.methods) out += ",\n";
        out += "{\"name\": " + quoted(name) + ", \"convention\": " + quoted(convention(m->ml_flags)) +
               ", \"doc\": " + quoted(m->ml_doc ? m->ml_doc : "");
        auto hook = [&](std::string_view suffix) {
            return name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix;
        };
        if (auto it = info.find(name); it != info.end()) {
            const wrap::RowInfo &r = *it->second;
            out += ", \"kind\": \"function\", \"owner\": " + quoted(r.owner) + ", \"prefix\": " + quoted(r.prefix) +
                   ", \"policy\": " + quoted(r.policy) + ", \"not_implemented\": " + (r.not_implemented ? "true" : "false") +
                   ", \"take_ref\": " + quoted(r.take_ref) + ", \"candidates\": [";
            for (std::size_t i = 0; i < r.count; ++i) {
                if (i) out += ", ";
                candidate(out, r.candidates[i]);
            }
            out += "]";
        } else if (hook("_swigregister") || hook("_swiginit")) {
            bool reg = hook("_swigregister");
            std::string_view cls = name.substr(0, name.rfind('_'));
            out += std::string(", \"kind\": ") + (reg ? "\"register\"" : "\"init\"") + ", \"prefix\": " + quoted(cls);
            if (reg) out += ", \"descriptor\": " + hook_descriptor(cls);
        } else {  // a function written by hand, not a row of the engine
            out += ", \"kind\": \"native\"";
        }
        out += "}";
    }
    out += "\n], \"constants\": [\n";
    bool first = true;
    for (auto [table, n] : tables.constants) {
        for (std::size_t i = 0; i < n; ++i) {
            out += (first ? "" : ",\n") + std::string("[") + quoted(table[i].name) + ", " + std::to_string(table[i].value) + "]";
            first = false;
        }
    }
    // Each descriptor with the descriptors that convert to it (the cast graph's edges).
    out += "\n], \"types\": [\n";
    for (std::size_t i = 0; i < tables.type_count; ++i) {
        out += (i ? ",\n" : "") + std::string("{\"name\": ") + quoted(tables.types[i]->name) +
               ", \"str\": " + quoted(tables.types[i]->str) + ", \"from\": [";
        bool any = false;
        for (swig_cast_info *c = tables.casts[i]; c->type; ++c) {
            if (c->type == tables.types[i]) continue;
            out += (any ? ", " : "") + quoted(c->type->name);
            any = true;
        }
        out += "]}";
    }
    out += "\n], \"module\": " + quoted(tables.name) + "}\n";
    return PyUnicode_FromStringAndSize(out.data(), (Py_ssize_t)out.size());
}

PyMethodDef methods[] = {
    {"describe", describe, METH_NOARGS, "The method table, constants and cast graph of the module as JSON."},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

#define ENTRY_OF(name) PyInit_##name##describe
#define ENTRY(name) ENTRY_OF(name)
#define TEXT_OF(name) #name "describe"
#define TEXT(name) TEXT_OF(name)

PyMODINIT_FUNC ENTRY(DESCRIBED)() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, TEXT(DESCRIBED), nullptr, -1, methods, nullptr, nullptr, nullptr, nullptr};
    return PyModule_Create(&def);
}
