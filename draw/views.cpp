// The buffer protocol: arrays, vectors, matrices and images as views of their memory.
#include "draw/bind.h"

using namespace wrap;

void add_view_rows(Table &, Constants &) {}
