// Joining the ring of modules that share the capsule, constant installation and teardown.
#include "swigrt.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>

PyObject *Swig_This_global = nullptr;
PyObject *Swig_TypeCache_global = nullptr;
PyObject *Swig_Globals_global = nullptr;
PyObject *Swig_Capsule_global = nullptr;
uint32_t interpreter_counter = 0;

static void link_cast(swig_type_info *type, swig_cast_info *cast) {
    if (type->cast) {
        type->cast->prev = cast;
        cast->next = type->cast;
    }
    type->cast = cast;
}

void SWIG_Python_JoinModuleTable(swig_module_info *module, swig_type_info **type_initial,
                                 swig_cast_info **cast_initial) {
    bool init = false;
    if (!module->next) {
        module->type_initial = type_initial;
        module->cast_initial = cast_initial;
        module->next = module;
        init = true;
    }

    auto *head = (swig_module_info *)PyCapsule_Import(SWIG_CAPSULE_NAME, 0);
    if (PyErr_Occurred()) {
        PyErr_Clear();
        head = nullptr;
    }
    if (head) {
        swig_module_info *iter = head;
        do {
            if (iter == module) return;  // already in the ring
            iter = iter->next;
        } while (iter != head);
        module->next = head->next;
        head->next = module;
    } else {
        PyObject *runtime = PyImport_AddModule("swig_runtime_data4");
        PyObject *capsule = PyCapsule_New((void *)module, SWIG_CAPSULE_NAME, SWIG_Python_DestroyModule);
        if (runtime && capsule && PyModule_AddObject(runtime, "type_pointer_capsule", capsule) == 0) {
            ++interpreter_counter;
            Swig_Capsule_global = capsule;
        } else {
            Py_XDECREF(capsule);
        }
    }
    if (!init) return;

    bool shared = module->next != module;
    for (size_t i = 0; i < module->size; ++i) {
        swig_type_info *type = module->type_initial[i];
        if (shared) {
            if (swig_type_info *ret = SWIG_MangledTypeQueryModule(module->next, module, type->name)) {
                if (type->clientdata) ret->clientdata = type->clientdata;
                type = ret;
            }
        }
        for (swig_cast_info *cast = module->cast_initial[i]; cast->type; ++cast) {
            swig_type_info *ret = shared ? SWIG_MangledTypeQueryModule(module->next, module, cast->type->name) : nullptr;
            if (ret) {
                if (type == module->type_initial[i]) {
                    cast->type = ret;
                } else if (SWIG_TypeCheck(ret->name, type)) {
                    continue;  // the other module already has this edge
                }
            }
            link_cast(type, cast);
        }
        module->types[i] = type;
    }
    module->types[module->size] = nullptr;
}

// The runtime sets Swig_Capsule_global only in the module that created the capsule, yet objects
// of one module are given back by the destroy functions of another (the packages destroy
// everything reference-counted through _osg.delete_Referenced), whose disowning releases the
// reference its own global names: a sibling that joined the ring must hold the same capsule when
// it makes an owned object, or each such object lowers the capsule's count until the runtime
// module holds a freed capsule.
void SWIG_Python_HoldSharedCapsule() {
    if (Swig_Capsule_global) return;  // this module created it
    PyObject *runtime = PyImport_AddModule("swig_runtime_data4");
    PyObject *capsule = runtime ? PyObject_GetAttrString(runtime, "type_pointer_capsule") : nullptr;
    if (capsule) {
        Swig_Capsule_global = capsule;
        Py_DECREF(capsule);  // borrowed, as the creator's is: the runtime module holds it
    }
    PyErr_Clear();
}

void SWIG_Python_DestroyModule(PyObject *capsule) {
    auto *module = (swig_module_info *)PyCapsule_GetPointer(capsule, SWIG_CAPSULE_NAME);
    if (--interpreter_counter != 0) return;  // other users remain
    for (size_t i = 0; i < module->size; ++i) {
        swig_type_info *ty = module->types[i];
        if (ty->owndata) {
            auto *data = (SwigPyClientData *)ty->clientdata;
            ty->clientdata = nullptr;
            if (data) SwigPyClientData_Del(data);
        }
    }
    // Each accessor creates its global if it is missing; the release then undoes that.
    Py_DECREF(SWIG_This());
    Swig_This_global = nullptr;
    Py_DECREF(SWIG_globals());
    Swig_Globals_global = nullptr;
    Py_DECREF(SWIG_Python_TypeCache());
    Swig_TypeCache_global = nullptr;
    Swig_Capsule_global = nullptr;
}

void SWIG_Python_SetConstant(PyObject *d, const char *name, PyObject *value) {
    PyDict_SetItemString(d, name, value);
    Py_DECREF(value);
}

void SWIG_Python_InstallConstantTable(PyObject *d, const swig_const_info *constants) {
    for (const swig_const_info *c = constants; c->type; ++c) {
        PyObject *obj = nullptr;
        switch (c->type) {
        case 4: obj = SWIG_Python_NewPointerObj(c->pvalue, *c->ptype, 0); break;
        case 5:
            obj = c->pvalue ? SwigPyPacked_New(c->pvalue, (size_t)c->lvalue, *c->ptype) : Py_NewRef(Py_None);
            break;
        default: break;
        }
        if (obj) {
            PyDict_SetItemString(d, c->name, obj);
            Py_DECREF(obj);
        }
    }
}

void SWIG_Python_PatchPointerDocs(PyMethodDef *methods, const swig_const_info *constants, swig_type_info **) {
    static const char marker[] = "swig_ptr: ";
    for (PyMethodDef *m = methods; m->ml_name; ++m) {
        const char *doc = m->ml_doc;
        const char *at = doc ? std::strstr(doc, marker) : nullptr;
        if (!at) continue;
        const char *name = at + std::strlen(marker);
        const swig_const_info *ci = nullptr;
        for (const swig_const_info *c = constants; c->type; ++c) {
            if (std::strncmp(c->name, name, std::strlen(c->name)) == 0) {
                ci = c;
                break;
            }
        }
        if (!ci || ci->type != 4 || !ci->pvalue) continue;
        const char *tname = (*ci->ptype)->name;
        size_t before = (size_t)(at - doc);
        char *ndoc = (char *)std::malloc(before + std::strlen(tname) + 28);
        if (!ndoc) continue;
        std::memcpy(ndoc, doc, before);
        char *buff = ndoc + before;
        std::memcpy(buff, marker, sizeof(marker) - 1);
        buff += sizeof(marker) - 1;
        *buff++ = '_';
        buff = SWIG_PackData(buff, &ci->pvalue, sizeof(void *));
        *buff++ = '_';
        std::strcpy(buff, tname);
        m->ml_doc = ndoc;  // the old text is static; nothing to free
    }
}

const swig_fast_entry *SWIG_FindFastEntry(PyCFunction wrapper) {
    auto *head = (swig_module_info *)PyCapsule_Import(SWIG_CAPSULE_NAME, 0);
    if (!head) {
        PyErr_Clear();
        return nullptr;
    }
    swig_module_info *iter = head;
    do {
        auto *table = (const swig_fast_table *)iter->clientdata;
        if (table && table->magic == SWIG_FAST_TABLE_MAGIC) {
            const swig_fast_entry *first = table->entries, *last = first + table->count;
            auto *at = std::lower_bound(first, last, wrapper, [](const swig_fast_entry &e, PyCFunction w) {
                return std::less<const void *>()((const void *)e.wrapper, (const void *)w);
            });
            if (at != last && at->wrapper == wrapper) return at;
        }
        iter = iter->next;
    } while (iter != head);
    return nullptr;
}
