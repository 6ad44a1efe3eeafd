// Stand-in for the physics SDK's closed scene-graph support library. It gives the
// Python side its own owning reference on a group-family object. The real library
// replaces this file's shared object under the same name.
//
// Call counters are exported with C linkage so tests can read them through ctypes.
#include <osg/Group>

#include <atomic>

#define ZOG_EXPORT __attribute__((visibility("default")))

static std::atomic<unsigned long> reference_calls{0};
static std::atomic<unsigned long> unreference_calls{0};

namespace osg {

ZOG_EXPORT void Group_reference(osg::Group *group) {
    ++reference_calls;
    if (group) group->ref();
}

ZOG_EXPORT void Group_unreference(osg::Group *group) {
    ++unreference_calls;
    if (group) group->unref();  // deletes the group when no other reference remains
}

}  // namespace osg

extern "C" ZOG_EXPORT unsigned long zog_stub_reference_calls() { return reference_calls; }
extern "C" ZOG_EXPORT unsigned long zog_stub_unreference_calls() { return unreference_calls; }
