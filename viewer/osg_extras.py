# Written, not generated: what a notebook shows for a node.


def _repr_png_(self):
    """The node drawn at 320 x 240 offscreen (osgViewer.render), as the bytes of a PNG file."""
    import os
    import tempfile

    import osgDB
    import osgViewer
    image = osgViewer.render(self, 320, 240)
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "node.png")
        osgDB.writeImageFile(image, path)
        with open(path, "rb") as f:
            return f.read()


Node._repr_png_ = _repr_png_
del _repr_png_
