// Type records, cast lists with move-to-front, lookups by name and the query cache.
#include "swigrt.h"
#include <cstring>

swig_cast_info *SWIG_TypeCheck(const char *name, swig_type_info *ty) {
    swig_cast_info *head = ty->cast;
    for (swig_cast_info *it = head; it; it = it->next) {
        if (std::strcmp(it->type->name, name) != 0) continue;
        if (it != head) {
            // Move the hit to the front: the next check with this type costs one compare.
            it->prev->next = it->next;
            if (it->next) it->next->prev = it->prev;
            it->next = head;
            it->prev = nullptr;
            head->prev = it;
            ty->cast = it;
        }
        return it;
    }
    return nullptr;
}

void *SWIG_TypeCast(swig_cast_info *cast, void *ptr, int *newmemory) {
    return cast->converter ? cast->converter(ptr, newmemory) : ptr;
}

void SWIG_TypeClientData(swig_type_info *ti, void *clientdata) {
    ti->clientdata = clientdata;
    // Only pure aliases (entries without a converter) inherit the client data.
    for (swig_cast_info *cast = ti->cast; cast; cast = cast->next) {
        if (!cast->converter && !cast->type->clientdata) SWIG_TypeClientData(cast->type, clientdata);
    }
}

const char *SWIG_TypePrettyName(const swig_type_info *type) {
    if (!type) return "unknown";
    if (type->str) {
        const char *last = type->str;
        for (const char *s = type->str; *s; ++s)
            if (*s == '|') last = s + 1;
        return last;
    }
    return type->name ? type->name : "unknown";
}

swig_type_info *SWIG_MangledTypeQueryModule(swig_module_info *start, swig_module_info *end, const char *name) {
    swig_module_info *iter = start;
    do {
        if (iter->size) {
            size_t l = 0, r = iter->size - 1;
            do {
                size_t i = (l + r) / 2;
                const char *iname = iter->types[i]->name;
                if (!iname) break;
                int c = std::strcmp(name, iname);
                if (c == 0) return iter->types[i];
                if (c < 0) {
                    if (i == 0) break;
                    r = i - 1;
                } else {
                    l = i + 1;
                }
            } while (l <= r);
        }
        iter = iter->next;
    } while (iter != end);
    return nullptr;
}

// Compares one '|'-separated alternative [f1, l1) with [f2, l2) as if every blank of
// both were removed (trailing blanks included).
static int type_name_compare(const char *f1, const char *l1, const char *f2, const char *l2) {
    for (;; ++f1, ++f2) {
        while (f1 != l1 && *f1 == ' ') ++f1;
        while (f2 != l2 && *f2 == ' ') ++f2;
        if (f1 == l1 || f2 == l2) return (int)(f1 != l1) - (int)(f2 != l2);
        if (*f1 != *f2) return (*f1 > *f2) ? 1 : -1;
    }
}

static bool type_equiv(const char *nb, const char *tb) {
    const char *te = tb + std::strlen(tb);
    const char *ne = nb;
    while (*ne) {
        for (nb = ne; *ne; ++ne)
            if (*ne == '|') break;
        if (type_name_compare(nb, ne, tb, te) == 0) return true;
        if (*ne) ++ne;
    }
    return false;
}

swig_type_info *SWIG_TypeQueryModule(swig_module_info *start, swig_module_info *end, const char *name) {
    if (swig_type_info *ret = SWIG_MangledTypeQueryModule(start, end, name)) return ret;
    swig_module_info *iter = start;
    do {
        for (size_t i = 0; i < iter->size; ++i) {
            if (iter->types[i]->str && type_equiv(iter->types[i]->str, name)) return iter->types[i];
        }
        iter = iter->next;
    } while (iter != end);
    return nullptr;
}

PyObject *SWIG_Python_TypeCache() {
    if (!Swig_TypeCache_global) Swig_TypeCache_global = PyDict_New();
    return Swig_TypeCache_global;
}

swig_type_info *SWIG_Python_TypeQuery(const char *type) {
    PyObject *cache = SWIG_Python_TypeCache();
    PyObject *key = PyUnicode_FromString(type);
    PyObject *obj = PyDict_GetItem(cache, key);
    swig_type_info *descriptor = nullptr;
    if (obj) {
        descriptor = (swig_type_info *)PyCapsule_GetPointer(obj, nullptr);
    } else {
        auto *ring = (swig_module_info *)PyCapsule_Import(SWIG_CAPSULE_NAME, 0);
        if (PyErr_Occurred()) {
            PyErr_Clear();
            ring = nullptr;
        }
        if (ring) descriptor = SWIG_TypeQueryModule(ring, ring, type);
        if (descriptor) {
            obj = PyCapsule_New((void *)descriptor, nullptr, nullptr);
            if (obj) {
                PyDict_SetItem(cache, key, obj);
                Py_DECREF(obj);
            }
        }
    }
    Py_XDECREF(key);
    return descriptor;
}
