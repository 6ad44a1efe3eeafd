// What _osgDB's families include: its type table (the classes its functions take and return)
// and the engine over it.
#pragma once
#include "osgdb/headers.h"
#include "wrap/types.h"

#include <string>

namespace osgdb {

using Types = wrap::TypeTable<wrap::Type<osg::Referenced, "osg::Referenced">, wrap::Type<osg::Object, "osg::Object">,
                              wrap::Type<osg::Node, "osg::Node">, wrap::Type<osg::Image, "osg::Image">,
                              wrap::Type<std::string, "std::string">, wrap::Type<osgDB::Registry, "osgDB::Registry">,
                              wrap::Type<osgDB::Options, "osgDB::Options">,
                              wrap::Type<osgDB::ReaderWriter::ReadResult, "osgDB::ReaderWriter::ReadResult">,
                              wrap::Type<osgDB::ReaderWriter::WriteResult, "osgDB::ReaderWriter::WriteResult">>;

}  // namespace osgdb

namespace wrap {
template <class T>
    requires(osgdb::Types::has<T>)
inline constexpr int descriptor_of<T> = osgdb::Types::index_of<T>;
}  // namespace wrap

#include "wrap/module.h"

// The families, in the order their rows appear in the method table.
void add_file_rows(wrap::Table &t, wrap::Constants &c);
