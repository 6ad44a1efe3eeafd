# Written, not generated: the osgDB package raises where OSG's functions return nothing, with the
# reason OSG's registry gives.
import errno as _errno
import os as _os


def _missing(filename):
    if not _os.path.exists(filename):
        raise FileNotFoundError(_errno.ENOENT, _os.strerror(_errno.ENOENT), filename)


def _check(result, filename):
    if not result.success():
        raise OSError(f"{filename}: {result.statusMessage()}")
    return result


def readNodeFile(filename: str) -> osg.Node:
    """The scene in the file, as a proxy of its root's own class."""
    _missing(filename)
    return _check(Registry.instance().readNode(filename, None), filename).takeNode()


def readImageFile(filename: str) -> osg.Image:
    """The image in the file."""
    _missing(filename)
    return _check(Registry.instance().readImage(filename, None), filename).takeImage()


def writeNodeFile(node: osg.Node, filename: str) -> None:
    """Writes the scene below node, in the format of the file's extension."""
    _check(Registry.instance().writeNode(node, filename, None), filename)


def writeImageFile(image: osg.Image, filename: str) -> None:
    """Writes the image, in the format of the file's extension."""
    _check(Registry.instance().writeImage(image, filename, None), filename)
