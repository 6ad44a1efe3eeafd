#pragma once
#include "wrap/module.h"

// Installed before and after `cvar`, which sits between the two groups.
extern const IntConstant int_constants_before_cvar[];
extern const size_t int_constants_before_cvar_count;
extern const IntConstant int_constants_after_cvar[];
extern const size_t int_constants_after_cvar_count;
