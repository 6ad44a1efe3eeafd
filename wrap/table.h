// A family's binding rows are appended to the module's method table in table order.
#pragma once
#include "wrap/engine.h"
#include "wrap/hooks.h"

#include <initializer_list>
#include <vector>

namespace wrap {

using Table = std::vector<Row>;

inline void add(Table &t, std::initializer_list<Row> rows) { t.insert(t.end(), rows); }

}  // namespace wrap
