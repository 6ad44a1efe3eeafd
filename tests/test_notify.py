"""Notification: the level, handlers, the notify streams."""
import pytest

from engine_support import _osg, libc, mk, raises, type_name  # noqa: F401


@pytest.fixture
def level():
    saved = _osg.getNotifyLevel()
    yield
    _osg.setNotifyLevel(saved)


def test_level_is_passed_on_unchecked(level):
    assert _osg.setNotifyLevel(99) is None and _osg.getNotifyLevel() == 99
    _osg.setNotifyLevel(-1)  # enumerations read back signed
    assert _osg.getNotifyLevel() == -1
    _osg.setNotifyLevel(_osg.WARN)
    assert [_osg.isNotifyEnabled(s) for s in (_osg.FATAL, _osg.WARN, _osg.INFO)] == [True, True, False]
    raises(OverflowError, "in method 'setNotifyLevel', argument 1 of type 'osg::NotifySeverity'",
           _osg.setNotifyLevel, 2**40)
    raises(TypeError, "in method 'isNotifyEnabled', argument 1 of type 'osg::NotifySeverity'",
           _osg.isNotifyEnabled, 1.0)
    assert _osg.getNotifyLevel() == _osg.WARN and _osg.initNotifyLevel() is True


def test_handlers_are_borrowed_and_replaceable(mk):
    current = _osg.getNotifyHandler()
    assert (type_name(current), current.own()) == ("osg::NotifyHandler *", False)
    count = _osg.Referenced_referenceCount(current)
    del current  # dropping the proxy releases nothing
    current = _osg.getNotifyHandler()
    assert _osg.Referenced_referenceCount(current) == count
    _osg.intrusive_ptr_add_ref(current)  # keeps the default alive while it is replaced
    mine = mk.StandardNotifyHandler()
    try:
        assert _osg.setNotifyHandler(mine) is None
        assert (int(_osg.getNotifyHandler()), _osg.Referenced_referenceCount(mine)) == (int(mine), 2)
    finally:
        _osg.setNotifyHandler(current)
        _osg.intrusive_ptr_release(current)
    assert _osg.Referenced_referenceCount(mine) == 1


def test_standard_handler_writes_by_severity(mk, capfd):
    h = mk.StandardNotifyHandler()
    _osg.StandardNotifyHandler_notify(h, _osg.WARN, "warned\n")
    _osg.NotifyHandler_notify(h, _osg.NOTICE, "noticed\n")  # a virtual call through the base
    libc.fflush(None)
    assert capfd.readouterr() == ("noticed\n", "warned\n")
    assert all(type_name(s) == "std::ostream *" and not s.own() for s in map(_osg.notify, range(7)))
    assert int(_osg.notify()) == int(_osg.notify(_osg.INFO))  # notify() is the INFO stream
