// The entry PyInit__osgDB: OSG's file reading and writing, on the same runtime and engine as _osg.
#include "osgdb/bind.h"

#include "docs.inc"
#include "wrap/sibling.h"

WRAP_SIBLING(_osgDB, osgdb::Types, "OpenSceneGraph's osgDB: reading and writing files.", add_file_rows)
