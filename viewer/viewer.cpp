// osgViewer::ViewerBase, osgViewer::View and osgViewer::Viewer: the frame loop, the scene and
// camera of the view, the manipulator that drives it and the windows OSG opens for it. The
// members osgViewer::View inherits from osg::View, which no module binds, are repeated under
// its prefix.
#include "viewer/bind.h"
#include "wrap/object_class.h"

using namespace wrap;

namespace {

constexpr Text b = "bool";
constexpr Text d = "double";
constexpr Text i = "int";
constexpr Text ui = "unsigned int";

using VB = osgViewer::ViewerBase;
using KB = Class<VB, "osgViewer::ViewerBase", "ViewerBase">;

// The short forms call the member by name, so OSG's own defaults (USE_REFERENCE_TIME) fill in the rest.
constexpr auto frame = [](VB *v, auto... a) { v->frame(a...); };
constexpr auto advance = [](VB *v, auto... a) { v->advance(a...); };

template <Text Set, Text Get, class V, Text Spelling, void (VB::*S)(V), V (VB::*G)() const>
void setting(Table &t) {
    add(t, {KB::fn<Set, S, Spelling>(), KB::fn<Get, G>()});
}

using W = osgViewer::View;
using KW = ObjectClass<W, "osgViewer::View", "View">;
using Manipulator = osgGA::CameraManipulator;

constexpr auto set_manipulator = [](W *w, auto... a) { w->setCameraManipulator(a...); };
constexpr auto in_window = [](W *w, auto... a) { w->setUpViewInWindow(a...); };
constexpr auto single_screen = [](W *w, auto... a) { w->setUpViewOnSingleScreen(a...); };
constexpr auto continuous = [](W *w, auto... a) { w->requestContinuousUpdate(a...); };

using V = osgViewer::Viewer;
using KV = ObjectClass<V, "osgViewer::Viewer", "Viewer">;

constexpr auto reference_time = [](V *v, auto... a) { v->setReferenceTime(a...); };
constexpr auto viewer_advance = [](V *v, auto... a) { v->advance(a...); };

}  // namespace

void add_viewer_rows(Table &t, Constants &c) {
    // An abstract base: no constructor, so no swiginit either.
    add(t, {
        KB::fn<"setThreadingModel", &VB::setThreadingModel, "osgViewer::ViewerBase::ThreadingModel">(),
        KB::fn<"getThreadingModel", &VB::getThreadingModel>(),
        KB::fn<"suggestBestThreadingModel", &VB::suggestBestThreadingModel>(),
        KB::fn<"setUpThreading", &VB::setUpThreading>(),
        KB::fn<"areThreadsRunning", &VB::areThreadsRunning>(),
        KB::fn<"stopThreading", &VB::stopThreading>(),
        KB::fn<"startThreading", &VB::startThreading>(),
        KB::fn<"setEndBarrierPosition", &VB::setEndBarrierPosition, "osgViewer::ViewerBase::BarrierPosition">(),
        KB::fn<"getEndBarrierPosition", &VB::getEndBarrierPosition>(),
        KB::fn<"setDone", &VB::setDone, b>(),
        KB::fn<"done", &VB::done>(),
    });
    setting<"setKeyEventSetsDone", "getKeyEventSetsDone", int, i, &VB::setKeyEventSetsDone, &VB::getKeyEventSetsDone>(t);
    setting<"setQuitEventSetsDone", "getQuitEventSetsDone", bool, b, &VB::setQuitEventSetsDone,
            &VB::getQuitEventSetsDone>(t);
    setting<"setReleaseContextAtEndOfFrameHint", "getReleaseContextAtEndOfFrameHint", bool, b,
            &VB::setReleaseContextAtEndOfFrameHint, &VB::getReleaseContextAtEndOfFrameHint>(t);
    setting<"setRunFrameScheme", "getRunFrameScheme", VB::FrameScheme, "osgViewer::ViewerBase::FrameScheme",
            &VB::setRunFrameScheme, &VB::getRunFrameScheme>(t);
    setting<"setRunMaxFrameRate", "getRunMaxFrameRate", double, d, &VB::setRunMaxFrameRate, &VB::getRunMaxFrameRate>(t);
    add(t, {
        KB::fn<"isRealized", &VB::isRealized>(),
        KB::fn<"realize", &VB::realize>(),
        KB::fn<"run", &VB::run>(),
        KB::fn<"checkNeedToDoFrame", &VB::checkNeedToDoFrame>(),
        KB::fn<"checkEvents", &VB::checkEvents>(),
        KB::overload<"frame", KB::forms<"frame", frame, 0, List<VB *, double>, d>>(),
        KB::overload<"advance", KB::forms<"advance", advance, 0, List<VB *, double>, d>>(),
        KB::fn<"eventTraversal", &VB::eventTraversal>(),
        KB::fn<"updateTraversal", &VB::updateTraversal>(),
        KB::fn<"renderingTraversals", &VB::renderingTraversals>(),
        KB::fn<"checkWindowStatus", pick<void (VB::*)()>(&VB::checkWindowStatus)>(),
        KB::fn<"elapsedTime", &VB::elapsedTime>(),
        KB::fn<"getRequestRedraw", &VB::getRequestRedraw>(),
        KB::fn<"getRequestContinousUpdate", &VB::getRequestContinousUpdate>(),
        KB::register_hook(),
    });
    c.insert(c.end(), {
        constant("ViewerBase_SingleThreaded", VB::SingleThreaded),
        constant("ViewerBase_CullDrawThreadPerContext", VB::CullDrawThreadPerContext),
        constant("ViewerBase_ThreadPerContext", VB::ThreadPerContext),
        constant("ViewerBase_DrawThreadPerContext", VB::DrawThreadPerContext),
        constant("ViewerBase_CullThreadPerCameraDrawThreadPerContext", VB::CullThreadPerCameraDrawThreadPerContext),
        constant("ViewerBase_ThreadPerCamera", VB::ThreadPerCamera),
        constant("ViewerBase_AutomaticSelection", VB::AutomaticSelection),
        constant("ViewerBase_BeforeSwapBuffers", VB::BeforeSwapBuffers),
        constant("ViewerBase_AfterSwapBuffers", VB::AfterSwapBuffers),
        constant("ViewerBase_ON_DEMAND", VB::ON_DEMAND), constant("ViewerBase_CONTINUOUS", VB::CONTINUOUS),
    });

    t.push_back(KW::ctor<TakeRef::Count>());
    KW::meta(t);
    add(t, {
        KW::fn<"take", &W::take, "osg::View &">(),
        KW::fn<"setSceneData", pick<void (W::*)(osg::Node *)>(&W::setSceneData), "osg::Node *">(),
        KW::pair<"getSceneData", pick<osg::Node *(W::*)()>(&W::getSceneData),
                 pick<const osg::Node *(W::*)() const>(&W::getSceneData)>(),
        KW::overload<"setCameraManipulator",
                     KW::forms<"setCameraManipulator", set_manipulator, 1, List<W *, Manipulator *, bool>,
                               "osgGA::CameraManipulator *", b>>(),
        KW::pair<"getCameraManipulator", pick<Manipulator *(W::*)()>(&W::getCameraManipulator),
                 pick<const Manipulator *(W::*)() const>(&W::getCameraManipulator)>(),
        KW::fn<"home", &W::home>(),
        KW::fn<"setUpViewAcrossAllScreens", &W::setUpViewAcrossAllScreens>(),
        KW::overload<"setUpViewInWindow",
                     KW::forms<"setUpViewInWindow", in_window, 4, List<W *, int, int, int, int, unsigned>, i, i, i, i, ui>>(),
        KW::overload<"setUpViewOnSingleScreen",
                     KW::forms<"setUpViewOnSingleScreen", single_screen, 0, List<W *, unsigned>, ui>>(),
        KW::fn<"containsCamera", pick<bool (W::*)(const osg::Camera *) const>(&W::containsCamera),
               "osg::Camera const *">(),
        KW::fn<"requestRedraw", &W::requestRedraw>(),
        KW::overload<"requestContinuousUpdate",
                     KW::forms<"requestContinuousUpdate", continuous, 0, List<W *, bool>, b>>(),
        KW::fn<"requestWarpPointer", &W::requestWarpPointer, "float", "float">(),
        KW::fn<"requiresUpdateSceneGraph", &W::requiresUpdateSceneGraph>(),
        KW::fn<"requiresRedraw", &W::requiresRedraw>(),
        KW::fn<"assignSceneDataToCameras", &W::assignSceneDataToCameras>(),
        KW::fn<"init", &W::init>(),
        // osg::View's.
        KW::fn<"setCamera", [](W *w, osg::Camera *camera) { w->setCamera(camera); }, "osg::Camera *">(),
        KW::pair<"getCamera", [](W *w) { return w->getCamera(); }, [](const W *w) { return w->getCamera(); }>(),
        KW::fn<"setLightingMode", [](W *w, osg::View::LightingMode mode) { w->setLightingMode(mode); },
               "osg::View::LightingMode">(),
        KW::fn<"getLightingMode", [](const W *w) { return w->getLightingMode(); }>(),
        KW::fn<"setLight", [](W *w, osg::Light *light) { w->setLight(light); }, "osg::Light *">(),
        KW::pair<"getLight", [](W *w) { return w->getLight(); }, [](const W *w) { return w->getLight(); }>(),
    });
    KW::hooks(t);
    c.insert(c.end(), {constant("View_NO_LIGHT", osg::View::NO_LIGHT), constant("View_HEADLIGHT", osg::View::HEADLIGHT),
                       constant("View_SKY_LIGHT", osg::View::SKY_LIGHT)});

    // The members Viewer declares again, under its own prefix.
    t.push_back(KV::ctor<TakeRef::Count>());
    KV::meta(t);
    add(t, {
        KV::fn<"take", &V::take, "osg::View &">(),
        KV::fn<"readConfiguration", &V::readConfiguration, "std::string const &">(),
        KV::fn<"isRealized", &V::isRealized>(),
        KV::fn<"realize", &V::realize>(),
        KV::overload<"setReferenceTime", KV::forms<"setReferenceTime", reference_time, 0, List<V *, double>, d>>(),
        KV::fn<"setSceneData", pick<void (V::*)(osg::Node *)>(&V::setSceneData), "osg::Node *">(),
        KV::fn<"elapsedTime", &V::elapsedTime>(),
        KV::fn<"run", &V::run>(),
        KV::fn<"checkNeedToDoFrame", &V::checkNeedToDoFrame>(),
        KV::fn<"checkEvents", &V::checkEvents>(),
        KV::overload<"advance", KV::forms<"advance", viewer_advance, 0, List<V *, double>, d>>(),
        KV::fn<"eventTraversal", &V::eventTraversal>(),
        KV::fn<"updateTraversal", &V::updateTraversal>(),
    });
    KV::hooks(t);
}
