"""A short deterministic run of the fuzz harness over every function of the modules, and the
harness's own crash detection and replay."""
import fuzz


def test_every_function_survives_random_arguments(tmp_path):
    path = str(tmp_path / "table.json")
    table = fuzz.make_table(path)  # in a child: _osgproxy would teach this process's _osg OSG's hierarchy
    found, errors = fuzz.fuzz(3 * len(table["shapes"]), seed=20240611, chunk_size=1000, table_path=path, log=None,
                              table=table)  # each function three times
    assert (found, errors) == ([], [])


def test_a_crash_is_replayed_to_one_line(tmp_path):
    abort = "__import__('os').abort()"  # stands in for a crashing argument
    table = {"tokens": ["1.5"], "groups": {"crash": [abort]},
             "shapes": {"Vec3f_length": [["ptr:_p_osg__Vec3f"]], "Fog_setEnd": [["any", "crash"]]}}
    found, errors = fuzz.fuzz(40, seed=1, chunk_size=20, table_path=str(tmp_path / "t.json"), log=None, table=table)
    assert errors == []
    # Some calls took the crashing argument; each chunk reports it once, shrunk to the call itself.
    assert set(found) == {f"import _osg; _osg.Fog_setEnd(1.5, {abort})"}
    assert fuzz.crashes(found[0]) and not fuzz.crashes("import _osg; _osg.Fog_setEnd(1.5, 2.5)")


def test_hazards_are_never_generated():
    table = {"tokens": ["None", "0", "4294967295"], "groups": {},
             "shapes": {"Group_getChild": [["any", "any"]], "Referenced_addObserver": [["any", "any"]]}}
    calls = fuzz.make_calls(table, 7, 0, 400)
    assert all(args[0] != "None" for _, args in calls if args)
    assert all(args[1] in fuzz.HUGE + ["None"] for name, args in calls if name == "Group_getChild" and len(args) > 1)
    assert all(args[1] != "None" for name, args in calls if name == "Referenced_addObserver" and len(args) > 1)
