"""Wrapper anatomy of every class function: calling convention, argument counts, exact
per-argument messages, scalar, boolean, string and null-reference conversion."""
import pytest

from all_rows import DISPATCHERS, ROWS
from engine_support import VECTORS, _osg, mk, raises, refuse  # noqa: F401  (mk is a fixture)


def by_arity(test):
    return [r for r in ROWS if test(len(r.codes))]


@pytest.mark.parametrize("row", by_arity(bool), ids=lambda r: r.name)
def test_wrong_argument_1(row):
    f, args = getattr(_osg, row.name), [object()] * len(row.codes)
    if row.op:
        assert f(*args) is NotImplemented
    else:
        raises(TypeError, f"in method '{row.name}', argument 1 of type '{row.arg1}'", f, *args)


@pytest.mark.parametrize("row", by_arity(lambda n: n >= 2), ids=lambda r: r.name)
def test_fixed_arity_count_messages(row):
    f, n = getattr(_osg, row.name), len(row.codes)
    for count in (0, n - 1, n + 1):
        if row.op:
            assert f(*[object()] * count) is NotImplemented
        else:
            raises(TypeError, f"{row.name} expected {n} arguments, got {count}", f, *[object()] * count)


# (function, self, argument 2, exception, message): D DummyObject, V Vec3f, W Vec3d, Q Quat, C CopyOp, R Referenced.
CASES = [
    ("Referenced_setThreadSafeRefUnref", "R", 1, TypeError, "argument 2 of type 'bool'"),
    ("Object_setThreadSafeRefUnref", "D", 0, TypeError, "argument 2 of type 'bool'"),
    ("CopyOp_setCopyFlags", "C", 2.5, TypeError, "argument 2 of type 'osg::CopyOp::CopyFlags'"),
    ("CopyOp_setCopyFlags", "C", -1, OverflowError, "argument 2 of type 'osg::CopyOp::CopyFlags'"),
    ("Object_resizeGLObjectBuffers", "D", 2**32, OverflowError, "argument 2 of type 'unsigned int'"),
    ("Object_setDataVariance", "D", 2**31, OverflowError, "argument 2 of type 'osg::Object::DataVariance'"),
    ("Vec3f___imul__", "V", 1e39, OverflowError, "argument 2 of type 'osg::Vec3f::value_type'"),
    ("Vec3f___itruediv__", "V", "2", TypeError, "argument 2 of type 'osg::Vec3f::value_type'"),
    ("Vec3d___imul__", "W", 10**400, TypeError, "argument 2 of type 'osg::Vec3d::value_type'"),
    ("Vec3f___iadd__", "V", None, TypeError, "invalid null reference |argument 2 of type 'osg::Vec3f const &'"),
    ("Vec3d___isub__", "W", "V", TypeError, "argument 2 of type 'osg::Vec3d const &'"),
    ("Quat___iadd__", "Q", "W", TypeError, "argument 2 of type 'osg::Quat const &'"),
    ("Object_clone", "D", None, TypeError, "invalid null reference |argument 2 of type 'osg::CopyOp const &'"),
    ("Object_isSameKindAs", "D", "V", TypeError, "argument 2 of type 'osg::Object const *'"),
    ("Object_setUserData", "D", "V", TypeError, "argument 2 of type 'osg::Referenced *'"),
    ("Referenced_addObserver", "R", "D", TypeError, "argument 2 of type 'osg::Observer *'"),
]


@pytest.mark.parametrize("name,first,second,exc,text", CASES, ids=[c[0] for c in CASES])
def test_later_argument_messages(mk, name, first, second, exc, text):
    objects = {"D": mk.DummyObject(), "V": mk.Vec3f(1, 2, 3), "W": mk.Vec3d(), "Q": mk.Quat(), "C": mk.CopyOp(),
               "R": mk.Referenced()}
    prefix, _, rest = text.rpartition("|")
    second = objects[second] if second in objects else second
    raises(exc, f"{prefix}in method '{name}', {rest}", getattr(_osg, name), objects[first], second)
    assert objects[first].own()  # a failed in-place operator leaves the operand owning


def test_conversion_stops_at_the_first_failing_argument(mk):
    q, h = mk.Quat(), mk.StandardNotifyHandler()
    T, Q = TypeError, "osg::Quat const &"
    refuse((T, "Quat_slerp", 2, "osg::Quat::value_type", q, "t", None, object()),
           (T, "!Quat_slerp", 3, Q, q, 0.5, None, object()), (T, "Quat_slerp", 4, Q, q, 0.5, q, 1),
           (T, "StandardNotifyHandler_notify", 3, "char const *", h, 1, b"bytes"),
           (T, "NotifyHandler_notify", 2, "osg::NotifySeverity", h, 1.0, 5))


def test_numbers_and_pointers_accepted(mk):
    w = mk(_osg.Vec3d___imul__(mk.Vec3d(1, 2, 3), True))  # bool is an int, and ints are numbers
    assert _osg.Vec3d_length2(w) == 14.0
    v = mk(_osg.Vec3f___imul__(mk.Vec3f(1, 2, 3), float("inf")))  # infinities pass the float range check
    assert _osg.Vec3f_length(v) == float("inf")
    c, d = mk.CopyOp(), mk.DummyObject()
    _osg.CopyOp_setCopyFlags(c, 2**32 - 1)
    assert _osg.CopyOp_getCopyFlags(c) == 2**32 - 1
    _osg.Object_setDataVariance(d, True)
    assert _osg.Object_getDataVariance(d) == 1
    _osg.Object_setDataVariance(d, -5)
    assert _osg.Object_getDataVariance(d) == -5
    assert _osg.DummyObject_isSameKindAs(d, None) is False  # None is a null pointer, passed on
    assert _osg.Referenced_setDeleteHandler(None) is None and _osg.Referenced_getDeleteHandler() is None


@pytest.mark.parametrize("kind", VECTORS + ["Quat"])
def test_v_set_takes_only_an_element_pointer(mk, kind):
    n = 4 if kind == "Quat" else int(kind[3])
    spelled, f = f"osg::{kind}::value_type [{n}]", getattr(_osg, f"{kind}__v_set")
    v = mk(getattr(_osg, f"new_{kind}")())
    raises(TypeError, f"invalid null reference in variable '_v' of type '{spelled}'", f, v, None)
    other = "Vec3d" if kind.endswith("f") else "Vec3f"  # float and double pointers do not mix
    for wrong in ([1.0] * n, getattr(_osg, f"{other}__v_get")(mk(getattr(_osg, f"new_{other}")()))):
        raises(TypeError, f"in method '{kind}__v_set', argument 2 of type '{spelled}'", f, v, wrong)


def test_result_kinds(mk):
    d, v = mk.DummyObject(), mk.Vec4f(1, 0.5, 0, 0.25)
    results = [_osg.Object_className(d), _osg.Vec4f_valid(v), _osg.Referenced_referenceCount(d), _osg.Vec4f_length2(v),
               _osg.Object_setName(d, "n")]
    assert [type(r) for r in results] == [str, bool, int, float, type(None)]
    assert (_osg.Vec4f_asABGR(v), _osg.Vec4f_asRGBA(v)) == (0xFF7F003F, 0x3F007FFF)  # unsigned, so positive
    assert _osg.Vec4d_asABGR(mk.Vec4d(1, 0.5, 0, 0.25)) == 0xFF7F003F


def test_docstrings_lead_with_prototypes_and_carry_osg_comments():
    functions = [getattr(_osg, n) for n in dir(_osg) if type(getattr(_osg, n)) is type(_osg.notify)]
    assert len(functions) > 900 and all(f.__doc__ for f in functions)
    for d in DISPATCHERS:  # the overload message's prototypes, one a line
        if d.protos:
            assert getattr(_osg, d.name).__doc__.startswith("\n".join(d.protos)), d.name
    for name, first, comment in [
            ("Vec3f_length", "osg::Vec3f::length() const", "Length of the vector = sqrt( vec . vec )"),
            ("Matrixf___mul__", "osg::Matrixf::operator *(osg::Vec3f const &) const", "Multiply by scalar."),
            ("__mul__", "osg::operator *(osg::Vec3f const &,osg::Vec4f const &)",
             "Compute the dot product of a (Vec3,1.0) and a Vec4f."),
            ("Group_addChild", "osg::Group::addChild(osg::Node *)", "Add Node to Group."),
            ("delete_Vec3f", "osg::Vec3f::~Vec3f()", None)]:
        doc = getattr(_osg, name).__doc__
        assert doc.split("\n")[0] == first and (comment is None or f"\n{comment}" in doc), name
