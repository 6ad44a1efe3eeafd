// OpenSceneGraph's notification: severity level, stream access and handlers.
#include "wrap/osg.h"

using namespace wrap;

namespace {

using H = osg::NotifyHandler;
using KH = Class<H, "osg::NotifyHandler", "NotifyHandler">;
using S = osg::StandardNotifyHandler;
using KS = Class<S, "osg::StandardNotifyHandler", "StandardNotifyHandler">;

}  // namespace

void add_notify_rows(Table &t) {
    add(t, {
        fn<"setNotifyLevel", osg::setNotifyLevel, "osg::NotifySeverity">(),
        fn<"getNotifyLevel", osg::getNotifyLevel>(),
        fn<"initNotifyLevel", osg::initNotifyLevel>(),
        fn<"isNotifyEnabled", osg::isNotifyEnabled, "osg::NotifySeverity">(),
        overload<"notify", fc<"osg::notify", pick<std::ostream &(*)(osg::NotifySeverity)>(osg::notify), "osg::NotifySeverity const">,
                 fc<"osg::notify", pick<std::ostream &(*)()>(osg::notify)>>(),
        fn<"setNotifyHandler", osg::setNotifyHandler, "osg::NotifyHandler *">(),
        fn<"getNotifyHandler", osg::getNotifyHandler>(),
        KH::fn<"notify", &H::notify, "osg::NotifySeverity", "char const *">(),
        KH::dtor_unref(),
        register_row<ty::p_osg__NotifyHandler>("NotifyHandler_swigregister"),
        KS::ctor<TakeRef::Count, KS::with<>::c<>>(),
        KS::fn<"notify", &S::notify, "osg::NotifySeverity", "char const *">(),
        KS::dtor_unref(),
        register_row<ty::p_osg__StandardNotifyHandler>("StandardNotifyHandler_swigregister"),
        init_row("StandardNotifyHandler_swiginit"),
    });
}
