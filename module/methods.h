// The module's method table, assembled from the per-family binding tables.
#pragma once
#include "runtime/swigrt.h"

extern PyMethodDef *const SwigMethods;
