// Reading and writing scenes and images with OSG's plugins, chosen by the file's extension.
// A node or image read is a new object: its proxy owns the one reference Python holds.
#include "osgdb/bind.h"

using namespace wrap;

namespace {

using Name = const std::string &;
using Reg = osgDB::Registry;
using RR = osgDB::ReaderWriter::ReadResult;
using WR = osgDB::ReaderWriter::WriteResult;
using KR = Class<Reg, "osgDB::Registry", "Registry">;
using KRR = Class<RR, "osgDB::ReaderWriter::ReadResult", "ReadResult">;
using KWR = Class<WR, "osgDB::ReaderWriter::WriteResult", "WriteResult">;
constexpr Text name = "std::string const &";
constexpr Text options = "osgDB::Options const *";

}  // namespace

void add_file_rows(Table &t, Constants &) {
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
    // The registry's reads and writes answer with a result that says why they failed.
    add(t, {
        KR::static_fn<"instance", [] { return Reg::instance(); }>(),
        KR::fn<"readNode", [](Reg *r, Name f, const osgDB::Options *o) { return r->readNode(f, o); }, name, options>(),
        KR::fn<"readImage", [](Reg *r, Name f, const osgDB::Options *o) { return r->readImage(f, o); }, name, options>(),
        KR::fn<"writeNode", [](Reg *r, const osg::Node &n, Name f, const osgDB::Options *o) { return r->writeNode(n, f, o); },
               "osg::Node const &", name, options>(),
        KR::fn<"writeImage", [](Reg *r, const osg::Image &i, Name f, const osgDB::Options *o) { return r->writeImage(i, f, o); },
               "osg::Image const &", name, options>(),
        KR::register_hook(),
        KRR::dtor_delete(),
        KRR::fn<"success", &RR::success>(),
        KRR::fn<"statusMessage", &RR::statusMessage>(),
        // take: the result lets go of its object, which the proxy then owns.
        KRR::fn<"takeNode", [](RR *r) { return osg::ref_ptr<osg::Node>(r->takeNode()); }>(),
        KRR::fn<"takeImage", [](RR *r) { return osg::ref_ptr<osg::Image>(r->takeImage()); }>(),
        KRR::register_hook(),
        KWR::dtor_delete(),
        KWR::fn<"success", &WR::success>(),
        KWR::fn<"statusMessage", &WR::statusMessage>(),
        KWR::register_hook(),
    });
}
