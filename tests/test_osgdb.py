"""The osgDB package with _osgdraw's classes: meshes, shapes and images written and read back;
the errors a missing file, an unknown format and an unwritable place give."""
import pytest

pytest.importorskip("numpy", reason="numpy is not installed (Debian's python3-numpy)")


def test_round_trips_and_errors(run_py, tmp_path):
    out, err = run_py(f"""
        import errno, os, numpy, osg, osgDB
        tmp = {str(tmp_path)!r}
        def back(node, ext):
            path = os.path.join(tmp, "scene" + ext)
            osgDB.writeNodeFile(node, path)
            return osgDB.readNodeFile(path)

        # First, while no plugin is loaded: OSG's reason then is the missing plugin.
        def fails(call, *args):
            try:
                call(*args)
            except Exception as e:
                return type(e).__name__, e.errno if isinstance(e, FileNotFoundError) else None, str(e)
        image = osg.Image()
        image.allocateImage(2, 2, 1, osg.GL_RGBA, osg.GL_UNSIGNED_BYTE)
        odd = os.path.join(tmp, "scene.nosuchformat")
        open(odd, "w").close()
        missing = os.path.join(tmp, "missing.osgt")
        for call, args, expected in [
                (osgDB.readNodeFile, (missing,), ("FileNotFoundError", errno.ENOENT, f"[Errno 2] No such file or directory: '{{missing}}'")),
                (osgDB.readImageFile, (missing,), ("FileNotFoundError", errno.ENOENT, f"[Errno 2] No such file or directory: '{{missing}}'")),
                (osgDB.readNodeFile, (odd,), ("OSError", None, f'{{odd}}: read error (Could not find plugin to read objects from file "{{odd}}".)')),
                (osgDB.writeNodeFile, (osg.Group(), odd), ("OSError", None, f'{{odd}}: write error (Could not find plugin to write nodes to file "{{odd}}".)')),
                (osgDB.writeImageFile, (image, odd), ("OSError", None, f'{{odd}}: write error (Could not find plugin to write image to file "{{odd}}".)')),
                (osgDB.writeNodeFile, (osg.Group(), 5), ("TypeError", None, "in method 'Registry_writeNode', argument 3 of type 'std::string const &'"))]:
            assert fails(call, *args) == expected, (fails(call, *args), expected)

        # A mesh from NumPy and from lists, smoothed, comes back with its vertices and normals.
        points = numpy.array([(0, 0, 0), (1, 0, 0), (1, 1, 0), (0, 1, 0), (0.5, 0.5, 1)], numpy.float32)
        faces = [0, 1, 4, 1, 2, 4, 2, 3, 4, 3, 0, 4]
        for vertices in (osg.Vec3Array(points), osg.Vec3Array([tuple(map(float, p)) for p in points])):
            mesh, geode = osg.Geometry(), osg.Geode()
            mesh.setVertexArray(vertices)
            indices = osg.DrawElementsUInt(osg.PrimitiveSet.TRIANGLES)
            for i in faces:
                indices.push_back(i)
            mesh.addPrimitiveSet(indices)
            osg.SmoothingVisitor.smooth(mesh)
            geode.addDrawable(mesh)
            root = back(geode, ".osgt")  # a borrowed result lives as long as its owner
            got = root.getDrawable(0)
            assert type(got) is osg.Geometry and numpy.array_equal(numpy.asarray(got.getVertexArray()), points)
            assert numpy.asarray(got.getNormalArray()).shape == (5, 3)

        # Every shape comes back as its own class, with its dimensions.
        c = osg.Vec3f(1, 2, 3)
        shapes = [(osg.Box(c, 1, 2, 3), "getHalfLengths", osg.Vec3f(0.5, 1, 1.5)), (osg.Sphere(c, 2), "getRadius", 2),
                  (osg.Capsule(c, 0.5, 3), "getHeight", 3), (osg.Cylinder(c, 0.25, 4), "getHeight", 4),
                  (osg.Cone(c, 1.5, 2), "getRadius", 1.5)]
        geode = osg.Geode()
        for shape, _, _ in shapes:
            geode.addDrawable(osg.ShapeDrawable(shape))
        geode = back(geode, ".osgt")
        for i, (shape, getter, value) in enumerate(shapes):
            got = geode.getDrawable(i).getShape()
            assert type(got) is type(shape) and getattr(got, getter)() == value and got.getCenter() == c

        # An image filled through NumPy comes back from PNG byte for byte.
        image = osg.Image()
        image.allocateImage(5, 3, 1, osg.GL_RGBA, osg.GL_UNSIGNED_BYTE)
        pixels = numpy.asarray(image)
        pixels[...] = numpy.arange(pixels.size, dtype=numpy.uint8).reshape(pixels.shape)
        path = os.path.join(tmp, "image.png")
        osgDB.writeImageFile(image, path)
        got = osgDB.readImageFile(path)
        assert type(got) is osg.Image and numpy.array_equal(numpy.asarray(got), pixels)

        print("done")
    """)
    assert out == "done\n"
