"""Camera: a camera configured end to end and read back, attachments without a graphics
context, resizing, render order, ownership of its results, and the refusals that keep a camera
apart from nodes."""
import ctypes
import math

import pytest

from engine_support import SwigPyObject, V, _osg, _osgpeer, at, count, doubles, free_borrowed, m16, mk, plain, point, \
    raises, type_name, values  # noqa: F401
from test_dispatch import overload_message

GL_COLOR_BUFFER_BIT, GL_DEPTH_BUFFER_BIT, GL_STENCIL_BUFFER_BIT = 0x4000, 0x0100, 0x0400
GL_BACK, GL_FRONT, GL_DEPTH_COMPONENT24 = 0x0405, 0x0404, 0x81A6


def attachments(camera_map):
    """A camera's attachments: [(component, format, texture, image, level, face, mipmap, samples, colour samples,
    width, height)], objects as addresses."""
    return [(k, *v) for k, v in sorted(plain(V.read(camera_map)).items())]


def test_view_and_projection(mk):
    cam = mk.Camera()
    view = _osg.Camera_getViewMatrix(cam)  # the camera's own matrix, taken before it changes
    _osg.Camera_setViewMatrixAsLookAt(cam, mk.Vec3d(0, -10, 0), mk.Vec3d(0, 0, 0), mk.Vec3d(0, 0, 1))
    # Looking along +y with z up: eye x is world x, eye y is world z, the target 10 ahead on -z.
    assert [c for p in [(0, 0, 0), (1, 0, 0), (0, 0, 1)] for c in point(view, p)] == \
        pytest.approx([0, 0, -10, 1, 0, -10, 0, 1, -10])
    eye, center, up = mk.Vec3d(), mk.Vec3d(), mk.Vec3d()
    _osg.Camera_getViewMatrixAsLookAt(cam, eye, center, up)  # look distance 1
    assert [c for v in (eye, center, up) for c in values(v, "Vec3d")] == pytest.approx([0, -10, 0, 0, -9, 0, 0, 0, 1])
    eye_f, center_f, up_f = mk.Vec3f(), mk.Vec3f(), mk.Vec3f()
    _osg.Camera_getViewMatrixAsLookAt(cam, eye_f, center_f, up_f, 10.0)
    assert values(center_f, "Vec3f") == pytest.approx([0, 0, 0], abs=1e-6)
    inverse, again = mk(_osg.Camera_getInverseViewMatrix(cam)), mk(_osg.Camera_getInverseViewMatrix(cam))
    assert inverse.own() and again.own() and int(inverse) != int(again) and not view.own()
    assert point(inverse, (0, 0, -10)) == pytest.approx([0, 0, 0])
    _osg.Camera_setViewMatrix(cam, mk.Matrixf(*[1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 2, 3, 1]))
    assert point(view, (0, 0, 0)) == [1, 2, 3]
    fovy, aspect, near, far = 45.0, 4 / 3, 1.0, 100.0
    _osg.Camera_setProjectionMatrixAsPerspective(cam, fovy, aspect, near, far)
    out, slots = doubles(6)
    assert _osg.Camera_getProjectionMatrixAsPerspective(cam, *slots[:4]) is True
    assert list(out[:4]) == pytest.approx([fovy, aspect, near, far])
    top = near * math.tan(math.radians(fovy) / 2)
    assert _osg.Camera_getProjectionMatrixAsFrustum(cam, *slots) is True
    assert list(out) == pytest.approx([-top * aspect, top * aspect, -top, top, near, far])
    assert _osg.Camera_getProjectionMatrixAsOrtho(cam, *slots) is False
    _osg.Camera_setProjectionMatrixAsOrtho(cam, -1, 2, -3, 4, 5, 6)
    assert _osg.Camera_getProjectionMatrixAsOrtho(cam, *slots) is True and list(out) == pytest.approx([-1, 2, -3, 4, 5, 6])
    raises(TypeError, "invalid null reference in method 'Camera_getProjectionMatrixAsFrustum', argument 4 of type "
           "'double &'", _osg.Camera_getProjectionMatrixAsFrustum, cam, *slots[:2], None, *slots[3:])


def test_clear_values_viewport_and_masks(mk):
    cam = mk.Camera()
    # The sibling registered the handles' classes, so each owned copy comes back as its instance.
    mask = _osg.Camera_getClearMask(cam)
    assert type(mask) is V.GLbitfield and mask.this.own() and type_name(mask) == "GLbitfield *"
    assert V.read(mask) == GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT
    _osg.Camera_setClearMask(cam, V.glbitfield(GL_COLOR_BUFFER_BIT | GL_STENCIL_BUFFER_BIT))
    fresh = _osg.Camera_getClearMask(cam)
    assert V.read(fresh) == 0x4400 and V.read(mask) == 0x4100  # a copy each time
    _osg.Camera_setDrawBuffer(cam, V.glenum(GL_BACK))
    _osg.Camera_setReadBuffer(cam, V.glenum(GL_FRONT))
    draw, read = _osg.Camera_getDrawBuffer(cam), _osg.Camera_getReadBuffer(cam)
    assert type(draw) is V.GLenum and draw.this.own() and type_name(draw.this) == "GLenum *"
    assert (V.read(draw), V.read(read)) == (GL_BACK, GL_FRONT)
    color = _osg.Camera_getClearColor(cam)
    _osg.Camera_setClearColor(cam, mk.Vec4f(0.25, 0.5, 0.75, 1))
    assert not color.own() and values(color, "Vec4f") == [0.25, 0.5, 0.75, 1]
    assert _osg.Camera_getViewport(cam) is None and _osg.Camera_getColorMask(cam) is None
    _osg.Camera_setViewport(cam, 10, 20, 400, 300)
    _osg.Camera_setColorMask(cam, True, False, True, False)
    vp, cm = _osg.Camera_getViewport(cam), _osg.Camera_getColorMask(cam)
    assert (type_name(vp), type_name(cm), vp.own(), cm.own()) == ("osg::Viewport *", "osg::ColorMask *", False, False)
    assert [at(getattr(_osg, f"Viewport_{f}")(vp), "double")[0] for f in ["x", "y", "width", "height"]] == [10, 20, 400, 300]
    assert [_osg.ColorMask_getRedMask(cm), _osg.ColorMask_getGreenMask(cm)] == [True, False]
    other = mk.Viewport()
    _osg.Camera_setViewport(cam, other)
    assert int(_osg.Camera_getViewport(cam)) == int(other)
    assert _osg.Referenced_referenceCount(other) == 3  # ours, the camera's and its state set's
    assert _osg.Camera_getImplicitBufferAttachmentRenderMask(cam) == _osg.Camera_USE_DISPLAY_SETTINGS_MASK == -1
    depth_and_color = _osg.Camera_IMPLICIT_DEPTH_BUFFER_ATTACHMENT | _osg.Camera_IMPLICIT_COLOR_BUFFER_ATTACHMENT
    assert _osg.Camera_getImplicitBufferAttachmentRenderMask(cam, True) == depth_and_color  # the display settings'
    _osg.Camera_setImplicitBufferAttachmentMask(cam, 1)  # the resolve mask takes the member's default
    assert (_osg.Camera_getImplicitBufferAttachmentRenderMask(cam),
            _osg.Camera_getImplicitBufferAttachmentResolveMask(cam, False)) == (1, depth_and_color)
    _osg.Camera_setProcessorAffinity(cam, _osgpeer.affinity())
    assert _osgpeer.affinity_cpus(_osg.Camera_getProcessorAffinity(cam)) == [3]


def test_attachments_and_resize(mk):
    cam, ref = mk.Camera(), mk.Camera()
    attached = _osg.Camera_getBufferAttachmentMap(cam)  # the camera's own map, taken while empty
    texture, image = _osgpeer.make_texture(400, 300), _osgpeer.make_image(400, 300)
    C0, C1, C2 = (getattr(_osg, f"Camera_COLOR_BUFFER{i}") for i in range(3))
    _osg.Camera_attach(cam, C0, texture)
    _osg.Camera_attach(cam, C1, texture, 2, 3, True, 4)
    _osg.Camera_attach(cam, C2, image, 8)
    _osg.Camera_attach(cam, _osg.Camera_DEPTH_BUFFER, V.glenum(GL_DEPTH_COMPONENT24))
    assert attachments(attached) == [
        (_osg.Camera_DEPTH_BUFFER, GL_DEPTH_COMPONENT24, None, None, 0, 0, False, 0, 0, 0, 0),
        (C0, 0, int(texture), None, 0, 0, False, 0, 0, 400, 300), (C1, 0, int(texture), None, 2, 3, True, 4, 0, 400, 300),
        (C2, 0, None, int(image), 0, 0, False, 8, 0, 400, 300)]
    assert _osg.Camera_isRenderToTextureCamera(cam) and not _osg.Camera_isRenderToTextureCamera(ref)
    _osg.Camera_detach(cam, _osg.Camera_DEPTH_BUFFER)
    assert len(attachments(attached)) == 3
    # Resizing keeps the vertical field of view: the projection becomes that of the wider aspect.
    for c in (cam, ref):
        _osg.Camera_setViewport(c, 0, 0, 400, 300)
        _osg.Camera_setProjectionMatrixAsPerspective(c, 45, 4 / 3, 1, 100)
    _osg.Camera_setProjectionResizePolicy(cam, _osg.Camera_HORIZONTAL)
    _osg.Camera_resize(cam, 800, 300)  # the short form: viewport and attachments, not the projection
    assert [a[-2:] for a in attachments(attached)] == [(800, 300)] * 3
    assert at(_osg.Viewport_width(_osg.Camera_getViewport(cam)), "double") == [800]
    _osg.Camera_resize(cam, 1600, 300, _osg.Camera_RESIZE_VIEWPORT | _osg.Camera_RESIZE_PROJECTIONMATRIX)
    _osg.Camera_setProjectionMatrixAsPerspective(ref, 45, 4 / 3 * 2, 1, 100)
    assert m16(_osg.Camera_getProjectionMatrix(cam)) == pytest.approx(m16(_osg.Camera_getProjectionMatrix(ref)))
    assert [a[-2:] for a in attachments(attached)] == [(800, 300)] * 3


def test_render_order_and_sorting(mk):
    cams = [mk.Camera() for _ in range(3)]
    for cam, args in zip(cams, [(_osg.Camera_POST_RENDER,), (_osg.Camera_PRE_RENDER, 5), (_osg.Camera_PRE_RENDER, -1)]):
        _osg.Camera_setRenderOrder(cam, *args)
    assert [(_osg.Camera_getRenderOrder(c), _osg.Camera_getRenderOrderNum(c)) for c in cams] == [(2, 0), (0, 5), (0, -1)]
    op = mk(_osg.new_CameraRenderOrderSortOp())  # by order, then by number
    assert [_osg.CameraRenderOrderSortOp___call__(op, *p) for p in [(cams[2], cams[1]), (cams[1], cams[2]),
                                                                     (cams[1], cams[0]), (cams[0], cams[0])]] == \
        [True, False, True, False]
    _osg.Camera_setRenderTargetImplementation(cams[0], _osg.Camera_FRAME_BUFFER, _osg.Camera_SEPARATE_WINDOW)
    assert (_osg.Camera_getRenderTargetImplementation(cams[0]), _osg.Camera_getRenderTargetFallback(cams[0])) == (3, 4)


def test_ownership(mk):
    cam = mk.Camera()
    assert cam.own() and count(cam) == 0  # no reference taken, unlike the Group family
    _osg.Camera_setClearDepth(cam, 0.25)
    for copy in [mk(_osg.new_Camera(cam)), mk(_osg.new_Camera(cam, mk.CopyOp()))]:
        assert copy.own() and count(copy) == 0 and _osg.Camera_getClearDepth(copy) == 0.25
    clone = _osg.Camera_clone(cam, mk.CopyOp())
    assert (type_name(clone), clone.own(), _osg.Object_className(clone)) == ("osg::Object *", False, "Camera")
    assert _osg.Camera_isSameKindAs(cam, clone) and int(_osg.Camera_asCamera(cam)) == int(cam)
    raises(TypeError, "in method 'Camera_getClearDepth', argument 1 of type 'osg::Camera const *'",
           _osg.Camera_getClearDepth, clone)
    free_borrowed(clone)


def test_refusals(mk):
    # Never called: conversion stops at the camera. A real group would move the counts of the
    # platform library's reference stub, which another test expects untouched.
    group = V.pointer(ctypes.addressof(ctypes.c_double()), "_p_osg__Group")
    cam, node = mk.Camera(), mk.Node()
    for f, args, text in [
            (_osg.Group_addChild, (group, cam), "argument 2 of type 'osg::Node *'"),
            (_osg.Node_getNodeMask, (cam,), "argument 1 of type 'osg::Node const *'"),
            (_osg.Transform_getReferenceFrame, (cam,), "argument 1 of type 'osg::Transform const *'"),
            (_osg.Referenced_referenceCount, (cam,), "argument 1 of type 'osg::Referenced const *'"),
            (_osg.delete_Group, (cam,), "argument 1 of type 'osg::Group *'"),
            (_osg.Camera_setClearDepth, (node, 1.0), "argument 1 of type 'osg::Camera *'"),
            (_osg.Camera_getViewMatrix, (group,), None),
            (_osg.CameraRenderOrderSortOp___call__, (mk(_osg.new_CameraRenderOrderSortOp()), cam, node),
             "argument 3 of type 'osg::Camera const *'"),
            (_osg.Camera_setDrawBuffer, (cam, GL_BACK), "argument 2 of type 'GLenum'"),
            (_osg.Camera_setClearMask, (cam, 0x4100), "argument 2 of type 'GLbitfield'"),
            (_osg.Camera_setClearMask, (cam, V.glenum(0x4100)), "argument 2 of type 'GLbitfield'"),
            (_osg.Camera_setClearMask, (cam, None), "invalid null reference |argument 2 of type 'GLbitfield'"),
            (_osg.Camera_setClearColor, (cam, None), "invalid null reference |argument 2 of type 'osg::Vec4 const &'"),
            (_osg.Camera_setProcessorAffinity, (cam, "0"), "argument 2 of type 'OpenThreads::Affinity const &'")]:
        name = f.__name__
        if text is None:  # a dispatcher: no candidate takes a group
            raises(TypeError, overload_message(name), f, *args)
        else:
            prefix, _, rest = text.rpartition("|")
            raises(TypeError, f"{prefix}in method '{name}', {rest}", f, *args)
    # Dispatchers test before they convert: a number, None or an out-of-range component fits no candidate.
    texture = _osgpeer.make_texture(4, 4)
    for args in [(0, GL_DEPTH_COMPONENT24), (2**40, texture), (0, texture, 1, 1, 1)]:
        raises(TypeError, overload_message("Camera_attach"), _osg.Camera_attach, cam, *args)
    _osg.Camera_attach(cam, 0, None)  # None is a null texture, never a null GLenum
    assert attachments(_osg.Camera_getBufferAttachmentMap(cam)) == [(0, 0, None, None, 0, 0, False, 0, 0, 0, 0)]
    raises(OverflowError, "in method 'Camera_detach', argument 2 of type 'osg::Camera::BufferComponent'",
           _osg.Camera_detach, cam, 2**40)
    raises(TypeError, overload_message("Camera_setColorMask"), _osg.Camera_setColorMask, cam, 1, 1, 1, 1)
    raises(TypeError, overload_message("new_Camera"), _osg.new_Camera, None)  # None fails the reference test
