// Reading and writing scenes and images with OSG's plugins, chosen by the file's extension.
// A node or image read is a new object: its proxy owns the one reference Python holds.
#include "osgdb/bind.h"

using namespace wrap;

namespace {

using Name = const std::string &;

}  // namespace

void add_file_rows(Table &t) {
    add(t, {
        qualified_fn<"osgDB::readNodeFile", [](Name f) { return osg::ref_ptr<osg::Node>(osgDB::readNodeFile(f)); },
                     "std::string const &">(),
        qualified_fn<"osgDB::writeNodeFile", [](const osg::Node &n, Name f) { return osgDB::writeNodeFile(n, f); },
                     "osg::Node const &", "std::string const &">(),
        qualified_fn<"osgDB::readImageFile", [](Name f) { return osg::ref_ptr<osg::Image>(osgDB::readImageFile(f)); },
                     "std::string const &">(),
        qualified_fn<"osgDB::writeImageFile", [](const osg::Image &i, Name f) { return osgDB::writeImageFile(i, f); },
                     "osg::Image const &", "std::string const &">(),
    });
}
