// osg::Camera and its render-order functor. The camera's descriptor has no edge to its
// bases, so the node members it needs are repeated here under its own prefix.
#include "scene/node_class.h"

using namespace wrap;

namespace {

using C = osg::Camera;
using K = scene::NodeClass<C, "osg::Camera", "Camera">;

template <class T>
using NC = T *(C::*)();
template <class T>
using CC = const T *(C::*)() const;
template <class T>
using NR = T &(C::*)();
template <class T>
using CR = const T &(C::*)() const;

using DC = C::DrawCallback;
using SetDC = void (C::*)(DC *);
using BC = C::BufferComponent;
using Impl = C::RenderTargetImplementation;
using Mask = C::ImplicitBufferAttachmentMask;
using V3 = osg::Vec3d;
using V3f = osg::Vec3f;

constexpr auto bitfield = handle<ty::p_GLbitfield>("GLbitfield");
constexpr auto glenum = handle<ty::p_GLenum>("GLenum");
constexpr Text vec4 = "osg::Vec4 const &";
constexpr Text d = "double";
constexpr Text dref = "double &";
constexpr Text ui = "unsigned int";
constexpr Text bc = "osg::Camera::BufferComponent";
constexpr Text impl = "osg::Camera::RenderTargetImplementation";
constexpr Text mask = "osg::Camera::ImplicitBufferAttachmentMask";
constexpr Text v3 = "osg::Vec3d &";
constexpr Text v3f = "osg::Vec3f &";
constexpr Text dc = "osg::Camera::DrawCallback *";
constexpr Text order = "osg::Camera::RenderOrder";

// The short forms call the member by name, so OSG's own defaults fill in the rest.
constexpr auto attach = [](C *c, auto... a) { c->attach(a...); };
constexpr auto look_at = [](const C *c, auto... a) { c->getViewMatrixAsLookAt(a...); };
constexpr auto resize = [](C *c, auto... a) { c->resize(a...); };
constexpr auto implicit_masks = [](C *c, auto... a) { c->setImplicitBufferAttachmentMask(a...); };
constexpr auto render_order = [](C *c, auto... a) { c->setRenderOrder(a...); };

template <Text Member, auto F, Text... Spell>
using m = K::m<Member, F, Spell...>;

// The header declares these const getters first: the const one is always taken.
template <Text Member, auto Const, auto NonConst>
constexpr Row const_first() {
    return K::overload<Member, m<Member, Const>, m<Member, NonConst>>();
}

// A Matrixf proxy selects the single-precision form.
template <Text Member, void (C::*F)(const osg::Matrixf &), void (C::*D)(const osg::Matrixd &)>
constexpr Row matrix_setter() {
    return K::overload<Member, m<Member, F, "osg::Matrixf const &">, m<Member, D, "osg::Matrixd const &">>();
}

// The stored mask, or with `effectiveMask` true the display settings' in place of USE_DISPLAY_SETTINGS_MASK.
template <Text Member, Mask (C::*Stored)() const, Mask (C::*Effective)(bool) const>
constexpr Row mask_getter() {
    return K::overload<Member, m<Member, Stored>, m<Member, Effective, "bool">>();
}

template <Text Op, Text Kind>
constexpr auto draw = cat(Op, Kind, Text("DrawCallback"));

// set, get (non-const first), add and remove of one of the four draw callbacks.
template <Text Kind, SetDC Set, NC<DC> Get, CC<DC> GetC, SetDC Add, SetDC Remove>
void draw_callbacks(Table &t) {
    add(t, {K::fn<draw<"set", Kind>, Set, dc>(), K::pair<draw<"get", Kind>, Get, GetC>(),
            K::fn<draw<"add", Kind>, Add, dc>(), K::fn<draw<"remove", Kind>, Remove, dc>()});
}

}  // namespace

void add_camera_rows(Table &t) {
    t.push_back(K::ctor<TakeRef::None>());  // the new camera starts at count 0, owned by its proxy
    K::meta(t);
    add(t, {
        K::as_self<NC<C>(&C::asCamera), CC<C>(&C::asCamera)>(),
        K::fn<"setView", &C::setView, "osg::View *">(),
        K::pair<"getView", NC<osg::View>(&C::getView), CC<osg::View>(&C::getView)>(),
        K::fn<"setStats", &C::setStats, "osg::Stats *">(),
        K::pair<"getStats", NC<osg::Stats>(&C::getStats), CC<osg::Stats>(&C::getStats)>(),
        K::fn<"setAllowEventFocus", &C::setAllowEventFocus, "bool">(),
        K::fn<"getAllowEventFocus", &C::getAllowEventFocus>(),
        K::fn<"setDisplaySettings", &C::setDisplaySettings, "osg::DisplaySettings *">(),
        K::pair<"getDisplaySettings", NC<osg::DisplaySettings>(&C::getDisplaySettings),
                CC<osg::DisplaySettings>(&C::getDisplaySettings)>(),
        K::fn<"setClearMask", &C::setClearMask, bitfield>(),
        K::fn<"getClearMask", returns_handle<ty::p_GLbitfield, &C::getClearMask>>(),
        K::fn<"setClearColor", &C::setClearColor, vec4>(),
        K::fn<"getClearColor", &C::getClearColor>(),
        K::fn<"setClearAccum", &C::setClearAccum, vec4>(),
        K::fn<"getClearAccum", &C::getClearAccum>(),
        K::fn<"setClearDepth", &C::setClearDepth, d>(),
        K::fn<"getClearDepth", &C::getClearDepth>(),
        K::fn<"setClearStencil", &C::setClearStencil, "int">(),
        K::fn<"getClearStencil", &C::getClearStencil>(),
        K::overload<"setColorMask", m<"setColorMask", pick<void (C::*)(osg::ColorMask *)>(&C::setColorMask), "osg::ColorMask *">,
                    m<"setColorMask", pick<void (C::*)(bool, bool, bool, bool)>(&C::setColorMask), "bool", "bool", "bool", "bool">>(),
        const_first<"getColorMask", CC<osg::ColorMask>(&C::getColorMask), NC<osg::ColorMask>(&C::getColorMask)>(),
        K::overload<"setViewport", m<"setViewport", pick<void (C::*)(osg::Viewport *)>(&C::setViewport), "osg::Viewport *">,
                    m<"setViewport", pick<void (C::*)(int, int, int, int)>(&C::setViewport), "int", "int", "int", "int">>(),
        const_first<"getViewport", CC<osg::Viewport>(&C::getViewport), NC<osg::Viewport>(&C::getViewport)>(),
        K::fn<"setTransformOrder", &C::setTransformOrder, "osg::Camera::TransformOrder">(),
        K::fn<"getTransformOrder", &C::getTransformOrder>(),
        K::fn<"setProjectionResizePolicy", &C::setProjectionResizePolicy, "osg::Camera::ProjectionResizePolicy">(),
        K::fn<"getProjectionResizePolicy", &C::getProjectionResizePolicy>(),
        matrix_setter<"setProjectionMatrix", &C::setProjectionMatrix, &C::setProjectionMatrix>(),
        K::fn<"setProjectionMatrixAsOrtho", &C::setProjectionMatrixAsOrtho, d, d, d, d, d, d>(),
        K::fn<"setProjectionMatrixAsOrtho2D", &C::setProjectionMatrixAsOrtho2D, d, d, d, d>(),
        K::fn<"setProjectionMatrixAsFrustum", &C::setProjectionMatrixAsFrustum, d, d, d, d, d, d>(),
        K::fn<"setProjectionMatrixAsPerspective", &C::setProjectionMatrixAsPerspective, d, d, d, d>(),
        K::pair<"getProjectionMatrix", NR<osg::Matrixd>(&C::getProjectionMatrix), CR<osg::Matrixd>(&C::getProjectionMatrix)>(),
        K::fn<"getProjectionMatrixAsOrtho", &C::getProjectionMatrixAsOrtho, dref, dref, dref, dref, dref, dref>(),
        K::fn<"getProjectionMatrixAsFrustum", &C::getProjectionMatrixAsFrustum, dref, dref, dref, dref, dref, dref>(),
        K::fn<"getProjectionMatrixAsPerspective", &C::getProjectionMatrixAsPerspective, dref, dref, dref, dref>(),
        matrix_setter<"setViewMatrix", &C::setViewMatrix, &C::setViewMatrix>(),
        K::pair<"getViewMatrix", NR<osg::Matrixd>(&C::getViewMatrix), CR<osg::Matrixd>(&C::getViewMatrix)>(),
        K::fn<"setViewMatrixAsLookAt", &C::setViewMatrixAsLookAt, "osg::Vec3d const &", "osg::Vec3d const &", "osg::Vec3d const &">(),
        K::overload<"getViewMatrixAsLookAt", K::forms<"getViewMatrixAsLookAt", look_at, 3, List<const C *, V3 &, V3 &, V3 &, double>,
                                                      v3, v3, v3, d>,
                    K::forms<"getViewMatrixAsLookAt", look_at, 3, List<const C *, V3f &, V3f &, V3f &, float>, v3f, v3f, v3f, "float">>(),
        K::fn<"getInverseViewMatrix", &C::getInverseViewMatrix>(),
        K::overload<"setRenderOrder", K::forms<"setRenderOrder", render_order, 1, List<C *, C::RenderOrder, int>, order, "int">>(),
        K::fn<"getRenderOrder", &C::getRenderOrder>(),
        K::fn<"getRenderOrderNum", &C::getRenderOrderNum>(),
        K::fn<"isRenderToTextureCamera", &C::isRenderToTextureCamera>(),
        K::overload<"setRenderTargetImplementation",
                    m<"setRenderTargetImplementation", pick<void (C::*)(Impl)>(&C::setRenderTargetImplementation), impl>,
                    m<"setRenderTargetImplementation", pick<void (C::*)(Impl, Impl)>(&C::setRenderTargetImplementation), impl, impl>>(),
        K::fn<"getRenderTargetImplementation", &C::getRenderTargetImplementation>(),
        K::fn<"getRenderTargetFallback", &C::getRenderTargetFallback>(),
        K::fn<"setDrawBuffer", &C::setDrawBuffer, glenum>(),
        K::fn<"getDrawBuffer", returns_handle<ty::p_GLenum, &C::getDrawBuffer>>(),
        K::fn<"setReadBuffer", &C::setReadBuffer, glenum>(),
        K::fn<"getReadBuffer", returns_handle<ty::p_GLenum, &C::getReadBuffer>>(),
        K::overload<"attach", m<"attach", pick<void (C::*)(BC, GLenum)>(&C::attach), bc, glenum>,
                    K::forms<"attach", attach, 2, List<C *, BC, osg::Texture *, unsigned, unsigned, bool, unsigned, unsigned>, bc,
                             "osg::Texture *", ui, ui, "bool", ui, ui>,
                    K::forms<"attach", attach, 2, List<C *, BC, osg::Image *, unsigned, unsigned>, bc, "osg::Image *", ui, ui>>(),
        K::fn<"detach", &C::detach, bc>(),
        K::pair<"getBufferAttachmentMap", NR<C::BufferAttachmentMap>(&C::getBufferAttachmentMap),
                CR<C::BufferAttachmentMap>(&C::getBufferAttachmentMap)>(),
        K::fn<"dirtyAttachmentMap", &C::dirtyAttachmentMap>(),
        K::fn<"setAttachmentMapModifiedCount", &C::setAttachmentMapModifiedCount, ui>(),
        K::fn<"getAttachmentMapModifiedCount", &C::getAttachmentMapModifiedCount>(),
        K::fn<"resizeAttachments", &C::resizeAttachments, "int", "int">(),
        K::overload<"resize", K::forms<"resize", resize, 2, List<C *, int, int, int>, "int", "int", "int">>(),
        K::overload<"setImplicitBufferAttachmentMask",
                    K::forms<"setImplicitBufferAttachmentMask", implicit_masks, 0, List<C *, Mask, Mask>, mask, mask>>(),
        K::fn<"setImplicitBufferAttachmentRenderMask", &C::setImplicitBufferAttachmentRenderMask, mask>(),
        K::fn<"setImplicitBufferAttachmentResolveMask", &C::setImplicitBufferAttachmentResolveMask, mask>(),
        mask_getter<"getImplicitBufferAttachmentRenderMask", &C::getImplicitBufferAttachmentRenderMask,
                    &C::getImplicitBufferAttachmentRenderMask>(),
        mask_getter<"getImplicitBufferAttachmentResolveMask", &C::getImplicitBufferAttachmentResolveMask,
                    &C::getImplicitBufferAttachmentResolveMask>(),
        K::fn<"setProcessorAffinity", &C::setProcessorAffinity, "OpenThreads::Affinity const &">(),
        K::pair<"getProcessorAffinity", NR<OpenThreads::Affinity>(&C::getProcessorAffinity),
                CR<OpenThreads::Affinity>(&C::getProcessorAffinity)>(),
        K::fn<"createCameraThread", &C::createCameraThread>(),
        K::fn<"setRenderer", &C::setRenderer, "osg::GraphicsOperation *">(),
        K::pair<"getRenderer", NC<osg::GraphicsOperation>(&C::getRenderer), CC<osg::GraphicsOperation>(&C::getRenderer)>(),
        K::fn<"setRenderingCache", &C::setRenderingCache, "osg::Object *">(),
        K::pair<"getRenderingCache", NC<osg::Object>(&C::getRenderingCache), CC<osg::Object>(&C::getRenderingCache)>(),
    });
    draw_callbacks<"Initial", &C::setInitialDrawCallback, &C::getInitialDrawCallback, &C::getInitialDrawCallback,
                   &C::addInitialDrawCallback, &C::removeInitialDrawCallback>(t);
    draw_callbacks<"Pre", &C::setPreDrawCallback, &C::getPreDrawCallback, &C::getPreDrawCallback, &C::addPreDrawCallback,
                   &C::removePreDrawCallback>(t);
    draw_callbacks<"Post", &C::setPostDrawCallback, &C::getPostDrawCallback, &C::getPostDrawCallback,
                   &C::addPostDrawCallback, &C::removePostDrawCallback>(t);
    draw_callbacks<"Final", &C::setFinalDrawCallback, &C::getFinalDrawCallback, &C::getFinalDrawCallback,
                   &C::addFinalDrawCallback, &C::removeFinalDrawCallback>(t);
    add(t, {
        K::fn<"getDataChangeMutex", &C::getDataChangeMutex>(),
        K::fn<"resizeGLObjectBuffers", &C::resizeGLObjectBuffers, ui>(),
        K::release_gl_objects(),
    });
    K::matrices(t);
    K::hooks(t);
}

namespace {

using S = osg::CameraRenderOrderSortOp;
using KS = Class<S, "osg::CameraRenderOrderSortOp", "CameraRenderOrderSortOp">;

}  // namespace

void add_camera_render_order_sort_op_rows(Table &t) {
    add(t, {
        KS::ctor<TakeRef::None, KS::with<>::c<>>(),
        KS::dtor_delete(),
        KS::fn<"__call__", &S::operator(), "osg::Camera const *", "osg::Camera const *">(),
        register_row<ty::p_osg__CameraRenderOrderSortOp>("CameraRenderOrderSortOp_swigregister"),
        init_row("CameraRenderOrderSortOp_swiginit"),
    });
}
