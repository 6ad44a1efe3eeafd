// Which type descriptor a C++ type crosses the boundary with, in the module being built. A
// type with a descriptor is passed as a pointer proxy (by pointer, by reference, or as an
// owned heap copy when returned by value); every other type must be a scalar, bool or C
// string. Each module's type header specialises descriptor_of for its own table, and each
// family includes its module's header before the engine.
#pragma once
#include "runtime/swigrt.h"

#include <type_traits>

// The live type table of the module being built (one per extension module), filled when the
// module joins the ring of modules that share the capsule.
extern swig_type_info *swig_types[];
extern swig_module_info swig_module;

namespace wrap {

template <class T>
inline constexpr int descriptor_of = -1;

template <class T>
concept Wrapped = descriptor_of<std::remove_cv_t<T>> >= 0;

template <class T>
inline swig_type_info *descriptor() {
    return swig_types[descriptor_of<std::remove_cv_t<T>>];
}

}  // namespace wrap
