"""Render state end to end: a state set's modes, attributes, uniforms, defines and bins, the
attributes themselves, and 2-D textures; opaque handles, std::string proxies and the
aliasing container proxies, with the values the sibling module makes."""
import ctypes

import pytest

from engine_support import SwigPyObject, V, _osg, _osgpeer as peer, at, count, free_borrowed, mk, plain, raises, referenced, \
    refuse, type_name, values  # noqa: F401

GL_CULL_FACE, GL_LIGHTING, GL_FOG, GL_TEXTURE_2D, GL_CLIP_PLANE0, GL_FLOAT = 0x0B44, 0x0B50, 0x0B60, 0x0DE1, 0x3000, 0x1406
ON, OVERRIDE, PROTECTED = _osg.StateAttribute_ON, _osg.StateAttribute_OVERRIDE, _osg.StateAttribute_PROTECTED
TYPES = {"Fog": _osg.StateAttribute_FOG, "ColorMask": _osg.StateAttribute_COLORMASK,
         "ClipPlane": _osg.StateAttribute_CLIPPLANE, "Viewport": _osg.StateAttribute_VIEWPORT}
mode, text = V.glenum, V.string


def items(value):
    return plain(V.read(value))


@pytest.fixture
def tex():
    made = []
    yield lambda *args: made.append(_osg.new_Texture2D(*args)) or made[-1]
    for t in made:
        t.disown()
        free_borrowed(referenced(t))


def test_constructors_take_one_reference_and_textures_none(mk, tex):
    for cls in ["StateSet", *TYPES]:
        p = mk(getattr(_osg, f"new_{cls}")())
        assert (type_name(p), p.own(), _osg.Referenced_referenceCount(p)) == (f"osg::{cls} *", True, 1)
        copy = mk(getattr(_osg, f"new_{cls}")(p))
        assert int(copy) != int(p) and _osg.Referenced_referenceCount(copy) == 1
    t = tex()
    assert (type_name(t), t.own(), count(t)) == ("osg::Texture2D *", True, 0)


def test_state_set_built_and_read_back_by_type(mk):
    ss, fog, mask, clip, vp = mk.StateSet(), mk.Fog(), mk.ColorMask(True, False, True, False), mk.ClipPlane(2), \
        mk.Viewport(0, 0, 640, 480)
    _osg.StateSet_setAttributeAndModes(ss, fog)  # the member's default: ON
    _osg.StateSet_setAttribute(ss, mask, OVERRIDE)
    _osg.StateSet_setAttributeAndModes(ss, clip, ON | PROTECTED)
    _osg.StateSet_setAttribute(ss, vp)  # the member's default: OFF
    _osg.StateSet_setMode(ss, mode(GL_CULL_FACE), ON)
    _osg.StateSet_setMode(ss, mode(GL_LIGHTING), OVERRIDE)
    for attr, cls in [(fog, "Fog"), (mask, "ColorMask"), (vp, "Viewport")]:
        got = _osg.StateSet_getAttribute(ss, TYPES[cls])
        assert (type_name(got), got.own(), int(got)) == ("osg::StateAttribute *", False, int(attr))
        assert _osg.StateAttribute_className(got) == cls and _osg.Referenced_referenceCount(attr) == 2
    assert _osg.StateSet_getAttribute(ss, TYPES["ClipPlane"]) is None  # a clip plane is keyed by its number
    assert int(_osg.StateSet_getAttribute(ss, TYPES["ClipPlane"], 2)) == int(clip)
    assert items(_osg.StateSet_getAttributePair(ss, TYPES["ColorMask"])) == (int(mask), OVERRIDE)
    assert items(_osg.StateSet_getAttributePair(ss, TYPES["Viewport"], 0)) == (int(vp), 0)
    assert _osg.StateSet_getAttributePair(ss, _osg.StateAttribute_MATERIAL) is None
    modes = {GL_CULL_FACE: ON, GL_LIGHTING: OVERRIDE, GL_FOG: ON, GL_CLIP_PLANE0 + 2: ON | PROTECTED}
    assert items(_osg.StateSet_getModeList(ss)) == modes
    assert [_osg.StateSet_getMode(ss, mode(m)) for m in modes] == list(modes.values())
    _osg.StateSet_removeAttribute(ss, mask)
    _osg.StateSet_removeAttribute(ss, TYPES["Viewport"])
    _osg.StateSet_removeAttribute(ss, TYPES["ClipPlane"], 2)
    assert [_osg.Referenced_referenceCount(a) for a in (mask, vp, clip, fog)] == [1, 1, 1, 2]
    assert list(items(_osg.StateSet_getAttributeList(ss))) == [(TYPES["Fog"], 0)]


def test_container_getters_alias_the_state_set(mk):
    ss, fog, node = mk.StateSet(), mk.Fog(), peer.special_node()
    lists = {c: getattr(_osg, f"StateSet_get{c}List")(ss) for c in
             ["Mode", "Attribute", "TextureMode", "TextureAttribute", "Uniform", "Define"]}
    parents, fog_parents = _osg.StateSet_getParents(ss), _osg.StateAttribute_getParents(fog)
    assert all(not p.thisown for p in [*lists.values(), parents, fog_parents])
    assert all(items(p) in ([], {}) for p in [*lists.values(), parents, fog_parents])
    _osg.StateSet_setMode(ss, mode(GL_CULL_FACE), ON)
    _osg.StateSet_setAttribute(ss, fog, PROTECTED)
    _osg.StateSet_setTextureMode(ss, 1, mode(GL_TEXTURE_2D), ON)
    u = _osg.StateSet_getOrCreateUniform(ss, text("scale"), V.uniform_type(GL_FLOAT))
    _osg.StateSet_setDefine(ss, text("SHADOWS"), text("2"))
    _osg.Node_setStateSet(node, ss)
    try:
        assert items(lists["Mode"]) == {GL_CULL_FACE: ON}
        assert items(lists["Attribute"]) == {(TYPES["Fog"], 0): (int(fog), PROTECTED)}
        assert items(lists["TextureMode"]) == [{}, {GL_TEXTURE_2D: ON}]
        assert items(lists["TextureAttribute"]) == []
        assert items(lists["Uniform"]) == {"scale": (int(u), 0)}  # OSG adds a created uniform with OFF
        assert items(lists["Define"]) == {"SHADOWS": ("2", ON)}
        assert (items(parents), items(fog_parents)) == ([int(node)], [int(ss)])
        assert int(_osg.StateSet_getParent(ss, 0)) == int(node) and _osg.StateSet_getNumParents(ss) == 1
        assert int(_osg.StateAttribute_getParent(fog, 0)) == int(ss)
    finally:
        _osg.Node_setStateSet(node, None)
    assert items(parents) == [] and _osg.Referenced_referenceCount(ss) == 1


def test_container_setters_copy(mk):
    a, b, fog = mk.StateSet(), mk.StateSet(), mk.Fog()
    _osg.StateSet_setMode(a, mode(GL_LIGHTING), ON)
    _osg.StateSet_setAttribute(a, fog)
    assert items(_osg.StateSet_getModeList(a)) == {GL_LIGHTING: ON}  # the short form leaves the fog's mode alone
    _osg.StateSet_setTextureMode(a, 0, mode(GL_TEXTURE_2D), ON)
    _osg.StateSet_setDefine(a, text("X"), 3)
    _osg.StateSet_getOrCreateUniform(a, text("u"), V.uniform_type(GL_FLOAT), 2)
    for c in ["Mode", "Attribute", "TextureMode", "Uniform", "Define"]:
        getattr(_osg, f"StateSet_set{c}List")(b, getattr(_osg, f"StateSet_get{c}List")(a))
        got, want = (items(getattr(_osg, f"StateSet_get{c}List")(s)) for s in (b, a))
        assert got == want and len(want) and int(getattr(_osg, f"StateSet_get{c}List")(b).this) != \
            int(getattr(_osg, f"StateSet_get{c}List")(a).this)
    _osg.StateSet_setTextureAttributeList(b, _osg.StateSet_getTextureAttributeList(a))
    assert _osg.Referenced_referenceCount(fog) == 3  # held by both state sets' lists
    raises(TypeError, "invalid null reference in method 'StateSet_setDefineList', argument 2 of type "
           "'osg::StateSet::DefineList const &'", _osg.StateSet_setDefineList, b, None)
    raises(TypeError, "in method 'StateSet_setModeList', argument 2 of type 'osg::StateSet::ModeList &'",
           _osg.StateSet_setModeList, b, _osg.StateSet_getDefineList(a))


def test_uniforms_defines_and_bins(mk):
    ss, other = mk.StateSet(), mk.StateSet()
    name, kind = text("colour"), V.uniform_type(GL_FLOAT)
    u = _osg.StateSet_getOrCreateUniform(ss, name, kind)
    assert (type_name(u), u.own()) == ("osg::Uniform *", False)
    assert int(_osg.StateSet_getOrCreateUniform(ss, name, kind)) == int(_osg.StateSet_getUniform(ss, name)) == int(u)
    assert items(_osg.StateSet_getUniformPair(ss, name)) == (int(u), 0)
    _osg.StateSet_addUniform(other, u, OVERRIDE)
    assert items(_osg.StateSet_getUniformPair(other, name)) == (int(u), OVERRIDE)
    _osg.StateSet_removeUniform(other, u)
    _osg.StateSet_removeUniform(ss, name)
    assert _osg.StateSet_getUniform(ss, name) is None and _osg.StateSet_getUniformPair(other, name) is None
    _osg.StateSet_setDefine(ss, text("A"))
    _osg.StateSet_setDefine(ss, text("B"), text("value"), PROTECTED)
    assert [items(_osg.StateSet_getDefinePair(ss, text(n))) for n in "AB"] == [("", ON), ("value", PROTECTED)]
    _osg.StateSet_removeDefine(ss, text("A"))
    assert _osg.StateSet_getDefinePair(ss, text("A")) is None
    _osg.StateSet_setRenderBinDetails(ss, 10, text("DepthSortedBin"))
    assert (_osg.StateSet_getBinNumber(ss), _osg.StateSet_getRenderBinMode(ss)) == (10, _osg.StateSet_USE_RENDERBIN_DETAILS)
    name = _osg.StateSet_getBinName(ss)
    assert (type_name(name), name.thisown, V.read(name)) == ("std::string *", False, "DepthSortedBin")
    _osg.StateSet_setBinName(other, name)  # a string proxy from a result is accepted back
    _osg.StateSet_setBinName(ss, text("RenderBin"))
    assert V.read(name) == "RenderBin"  # the proxy aliases the state set's own string
    assert V.read(_osg.StateSet_getBinName(other)) == "DepthSortedBin"


def test_compare_and_clone_across_classes(mk):
    fog, fog2, mask, vp = mk.Fog(), mk.Fog(), mk.ColorMask(), mk.Viewport(1, 2, 3, 4)
    assert _osg.StateAttribute_compare(fog, fog2) == 0 and _osg.StateAttribute___eq__(fog, fog2) is True
    _osg.Fog_setDensity(fog2, 0.5)  # the default density is 1
    assert (_osg.Fog_compare(fog, fog2), _osg.StateAttribute___lt__(fog2, fog)) == (1, True)
    across = _osg.StateAttribute_compare(mask, vp)
    assert across in (-1, 1) and _osg.StateAttribute_compare(vp, mask) == -across
    assert _osg.ColorMask_compare(mask, vp) == across
    assert _osg.StateAttribute___ne__(mask, vp) is True and _osg.StateAttribute___eq__(mask, 1) is NotImplemented
    for cls, obj in [("Fog", fog2), ("Viewport", vp), ("ColorMask", mask), ("StateAttribute", vp)]:
        clone = getattr(_osg, f"{cls}_clone")(obj, mk.CopyOp())
        same = _osg.Object_asStateAttribute(clone)
        assert (type_name(clone), int(clone) != int(obj), _osg.StateAttribute_compare(same, obj)) == \
            ("osg::Object *", True, 0)
        assert _osg.Referenced_referenceCount(clone) == 0 and _osg.StateAttribute_className(same) == \
            _osg.StateAttribute_className(obj)
        free_borrowed(clone)
        blank = _osg.StateAttribute_cloneType(obj)
        assert _osg.StateAttribute_isSameKindAs(obj, blank) and not _osg.Fog_isSameKindAs(fog, _osg.Object_asStateAttribute(mk.ColorMask()))
        free_borrowed(blank)
    pair = _osg.StateAttribute_getTypeMemberPair(mk.ClipPlane(5))
    assert (type_name(pair), pair.thisown, items(pair)) == \
        ("std::pair< enum osg::StateAttribute::Type,unsigned int > *", True, (TYPES["ClipPlane"], 5))


def test_refusals(mk, tex):
    ss, t = mk.StateSet(), tex()
    G = "osg::StateAttribute::GLMode"
    refuse(*[(TypeError, f, n, spelled, *args) for f, args, n, spelled in [
            ("StateSet_getMode", (ss, GL_FOG), 2, G),  # a Python int is no GLenum
            ("StateSet_setMode", (ss, V.glbitfield(GL_FOG), ON), 2, G),  # nor is another handle
            ("StateSet_getTextureMode", (ss, 0, "GL_FOG"), 3, G),
            ("StateSet_setBinName", (ss, "bin"), 2, "std::string const &"),  # a str is no std::string
            ("StateSet_removeDefine", (ss, b"x"), 2, "std::string const &"),
            ("StateSet_setAssociatedModes", (ss, t, ON), 2, "osg::StateAttribute const *"),  # a texture is no attribute
            ("StateAttribute_getType", (t,), 1, "osg::StateAttribute const *"),
            ("Texture2D_compare", (t, t), 2, "osg::StateAttribute const &"),
            ("intrusive_ptr_add_ref", (t,), 1, "osg::Referenced *"),
            ("Fog_setMode", (mk.Fog(), 1.0), 2, "osg::Fog::Mode"),
            ("!StateSet_removeMode", (ss, None), 2, G),  # "!": the null-reference message
            ("!StateSet_getMode", (ss, peer.null_pointer("_p_GLenum")), 2, G),
            ("!StateSet_getOrCreateUniform", (ss, text("u"), peer.null_pointer("_p_osg__Uniform__Type")), 3,
             "osg::Uniform::Type"),
            ("!StateSet_setRenderBinDetails", (ss, 1, peer.null_pointer("_p_std__string")), 3, "std::string const &")]])
    for f, args in [("StateSet_setTextureAttributeAndModes", (ss, 0, t)), ("StateSet_setDefine", (ss, "name"))]:
        with pytest.raises(TypeError, match=f"^Wrong number or type of arguments for overloaded function '{f}'"):
            getattr(_osg, f)(*args)


def test_attribute_values(mk):
    fog, colour = mk.Fog(), mk.Vec4f(0.25, 0.5, 0.75, 1)
    for field, value in [("Density", 0.25), ("Start", 2.5), ("End", 40.0)]:
        getattr(_osg, f"Fog_set{field}")(fog, value)
        assert getattr(_osg, f"Fog_get{field}")(fog) == value
    _osg.Fog_setMode(fog, _osg.Fog_EXP2)
    _osg.Fog_setColor(fog, colour)
    held = _osg.Fog_getColor(fog)
    assert _osg.Fog_getMode(fog) == 0x0801  # GL_EXP2
    assert (held.own(), values(held, "Vec4f")) == (False, [0.25, 0.5, 0.75, 1])
    _osg.Fog_setColor(fog, mk.Vec4f())
    assert values(held, "Vec4f") == [0, 0, 0, 0]  # the proxy aims at the fog's own colour
    mask = mk.ColorMask(True, False, True, False)
    _osg.ColorMask_setMask(mask, False, True, False, True)
    _osg.ColorMask_setRedMask(mask, True)
    assert [getattr(_osg, f"ColorMask_get{c}Mask")(mask) for c in ["Red", "Green", "Blue", "Alpha"]] == [1, 1, 0, 1]
    usage = peer.make_mode_usage()
    assert _osg.Fog_getModeUsage(fog, usage) is True and _osg.StateAttribute_getModeUsage(mk.ClipPlane(3), usage)
    assert peer.recorded_modes() == [(GL_FOG, False), (GL_CLIP_PLANE0 + 3, False)]
    assert [_osg.StateAttribute_getType(a) for a in (fog, mask)] == [TYPES["Fog"], TYPES["ColorMask"]]


def test_clip_planes_and_viewports(mk):
    for args, want in [((1, mk.Vec4d(1, 2, 3, 4)), [1, 2, 3, 4]), ((1, 0.5, 0, 0, 2), [0.5, 0, 0, 2]),
                       ((2, mk.Plane(0, 0, 2, 1)), [0, 0, 2, 1]), ((7,), [0, 0, 0, 0])]:
        cp = mk.ClipPlane(*args)
        assert (_osg.ClipPlane_getClipPlaneNum(cp), _osg.ClipPlane_getMember(cp),
                values(_osg.ClipPlane_getClipPlane(cp), "Vec4d")) \
            == (args[0], args[0], want)
    held = _osg.ClipPlane_getClipPlane(cp)
    _osg.ClipPlane_setClipPlane(cp, mk.Vec4d(4, 3, 2, 1))
    _osg.ClipPlane_setClipPlaneNum(cp, 4)
    assert (values(held, "Vec4d"), _osg.StateAttribute_getMember(cp), held.own()) == ([4, 3, 2, 1], 4, False)
    vp = mk.Viewport(10, 20, 640, 480)
    x = _osg.Viewport_x(vp)
    assert (type_name(x), x.thisown, at(x, "double")) == ("double *", False, [10])
    ctypes.c_double.from_address(int(_osg.Viewport_width(vp).this)).value = 960
    assert (_osg.Viewport_aspectRatio(vp), _osg.Viewport_valid(vp)) == (2.0, True)
    _osg.Viewport_setViewport(vp, 1, 2, 300, 0)
    assert ([at(getattr(_osg, f"Viewport_{c}")(vp), "double") for c in ["x", "y", "width", "height"]],
            _osg.Viewport_valid(vp), _osg.Viewport_aspectRatio(vp)) == ([[1], [2], [300], [0]], False, 1.0)
    _osg.Viewport_setViewport(vp, 10, 20, 200, 100)
    window = _osg.Viewport_computeWindowMatrix(vp)
    assert (type_name(window), window.own()) == ("osg::Matrixd *", True)
    assert at(int(window), "double", 16) == [100, 0, 0, 0, 0, 50, 0, 0, 0, 0, 0.5, 0, 110, 70, 0.5, 1]
    window.disown()  # Matrixd has no destroy function here yet


def test_texture2d_without_a_context(mk, tex):
    image = peer.make_image(64, 32)
    plain, t = tex(), tex(image)
    assert (_osg.Texture2D_getImage(plain), _osg.Texture2D_getImage(plain, 0)) == (None, None)
    assert int(_osg.Texture2D_getImage(t)) == int(_osg.Texture2D_getImage(t, 0)) == int(image)
    assert count(image) == 2  # the peer's and the texture's
    _osg.Texture2D_setTextureSize(t, 64, 32)
    assert [_osg.Texture2D_getTextureWidth(t), _osg.Texture2D_getTextureHeight(t)] == [64, 32]
    copy, deep = tex(t), tex(t, mk.CopyOp(_osg.CopyOp_DEEP_COPY_IMAGES))
    assert (int(_osg.Texture2D_getImage(copy)), _osg.Texture2D_getTextureWidth(copy)) == (int(image), 64)
    assert int(_osg.Texture2D_getImage(deep)) not in (int(image), 0) and count(image) == 3
    _osg.Texture2D_setImage(plain, 0, image)
    _osg.Texture2D_setImage(t, None)
    assert (int(_osg.Texture2D_getImage(plain)), _osg.Texture2D_getImage(t)) == (int(image), None)
    for f, args in [("new_Texture2D", (1,)), ("Texture2D_getImage", (t, -1))]:  # tests as strict as conversions
        with pytest.raises(TypeError, match=f"^Wrong number or type of arguments for overloaded function '{f}'"):
            getattr(_osg, f)(*args)
