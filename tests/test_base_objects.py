"""Referenced, Object and DummyObject: names, class names, mutexes, observers."""
from engine_support import V, _osg, free_borrowed, mk, type_name  # noqa: F401


def test_class_names_are_str_and_the_compound_name_an_owned_string(mk):
    d = mk.DummyObject()
    assert {_osg.Object_libraryName(d), _osg.DummyObject_libraryName(d)} == {"osg"}
    assert {_osg.Object_className(d), _osg.DummyObject_className(d)} == {"DummyObject"}
    compound = _osg.Object_getCompoundClassName(d)
    assert (type_name(compound), compound.thisown, V.read(compound)) == ("std::string *", True, "osg::DummyObject")


def test_get_name_aliases_the_objects_name(mk):
    d = mk.DummyObject()
    name = _osg.Object_getName(d)
    assert (type_name(name), name.thisown, V.read(name)) == ("std::string *", False, "")
    _osg.Object_setName(d, "renamed")
    assert V.read(name) == "renamed" and int(_osg.Object_getName(d).this) == int(name.this)
    copy = _osg.Object_clone(d, mk.CopyOp())
    assert V.read(_osg.Object_getName(copy)) == "renamed"
    free_borrowed(copy)


def test_referenced_mutexes_observers_and_thread_safety(mk):
    r = mk.Referenced(True)
    assert _osg.Referenced_setThreadSafeRefUnref(r, False) is None
    assert _osg.Referenced_getThreadSafeRefUnref(r) is True  # atomic reference counts are always thread safe
    mutex, shared = _osg.Referenced_getRefMutex(r), _osg.Referenced_getGlobalReferencedMutex()
    assert (type_name(mutex), int(mutex), mutex.own()) == ("OpenThreads::Mutex *", int(shared), False)
    assert _osg.Referenced_getObserverSet(r) is None
    observers = _osg.Referenced_getOrCreateObserverSet(r)
    assert (type_name(observers), observers.own(), int(_osg.Referenced_getObserverSet(r))) == \
        ("osg::ObserverSet *", False, int(observers))
