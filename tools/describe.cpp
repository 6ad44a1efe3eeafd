// _osgdescribe: a build-time module linked from _osg's own objects. Its one function returns
// the method table as JSON: every row in table order with its calling convention, owning
// class, candidates, parameter and result kinds, plus the constants and the cast graph.
// Everything the generated layers know of _osg comes from here.
#include "module/constants.h"
#include "module/methods.h"
#include "wrap/table.h"

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
    return index < 0 ? "null" : quoted(swig_type_initial_ptrs[index]->name);
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

// The descriptor a class hook registers: _p_osg__<Class> or _p_osgUtil__<Class>.
std::string hook_descriptor(std::string_view cls) {
    for (int i = 0; i < ty::count; ++i) {
        std::string_view n = swig_type_initial_ptrs[i]->name;
        for (std::string_view ns : {std::string_view("_p_osg__"), std::string_view("_p_osgUtil__")})
            if (n.size() == ns.size() + cls.size() && n.starts_with(ns) && n.ends_with(cls)) return quoted(n);
    }
    return "null";
}

PyObject *describe(PyObject *, PyObject *) {
    std::map<std::string_view, const wrap::RowInfo *> info;
    for (const wrap::RowInfo *r : wrap::described_rows()) info[r->name] = r;

    std::string out = "{\"rows\": [\n";
    for (PyMethodDef *m = SwigMethods; m->ml_name; ++m) {
        std::string_view name = m->ml_name;
        if (m != SwigMethods) out += ",\n";
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
        } else {
            return PyErr_Format(PyExc_RuntimeError, "row %s has no description", m->ml_name);
        }
        out += "}";
    }
    out += "\n], \"constants\": [\n";
    bool first = true;
    for (auto [table, n] : {std::pair{int_constants_before_cvar, int_constants_before_cvar_count},
                            std::pair{int_constants_after_cvar, int_constants_after_cvar_count}}) {
        for (std::size_t i = 0; i < n; ++i) {
            out += (first ? "" : ",\n") + std::string("[") + quoted(table[i].name) + ", " + std::to_string(table[i].value) + "]";
            first = false;
        }
    }
    // Each descriptor with the descriptors that convert to it (the cast graph's edges).
    out += "\n], \"types\": [\n";
    for (int i = 0; i < ty::count; ++i) {
        out += (i ? ",\n" : "") + std::string("{\"name\": ") + quoted(swig_type_initial_ptrs[i]->name) +
               ", \"str\": " + quoted(swig_type_initial_ptrs[i]->str) + ", \"from\": [";
        bool any = false;
        for (swig_cast_info *c = swig_cast_initial[i]; c->type; ++c) {
            if (c->type == swig_type_initial_ptrs[i]) continue;
            out += (any ? ", " : "") + quoted(c->type->name);
            any = true;
        }
        out += "]}";
    }
    out += "\n]}\n";
    return PyUnicode_FromStringAndSize(out.data(), (Py_ssize_t)out.size());
}

PyMethodDef methods[] = {
    {"describe", describe, METH_NOARGS, "The method table, constants and cast graph of _osg as JSON."},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

PyMODINIT_FUNC PyInit__osgdescribe() {
    static PyModuleDef def = {PyModuleDef_HEAD_INIT, "_osgdescribe", nullptr, -1, methods, nullptr, nullptr, nullptr, nullptr};
    return PyModule_Create(&def);
}
