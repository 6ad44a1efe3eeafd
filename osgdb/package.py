# Written, not generated: the osgDB package raises where OSG's functions return nothing.
import errno as _errno
import os as _os

_flat_read_node, _flat_read_image = readNodeFile, readImageFile
_flat_write_node, _flat_write_image = writeNodeFile, writeImageFile


def _missing(filename):
    if not _os.path.exists(filename):
        raise FileNotFoundError(_errno.ENOENT, _os.strerror(_errno.ENOENT), filename)


def readNodeFile(filename: str) -> osg.Node:
    """The scene in the file, as a proxy of its root's own class."""
    _missing(filename)
    node = _flat_read_node(filename)
    if node is None:
        raise OSError(f"{filename}: OpenSceneGraph could not read a scene from it")
    return node


def readImageFile(filename: str) -> osg.Image:
    """The image in the file."""
    _missing(filename)
    image = _flat_read_image(filename)
    if image is None:
        raise OSError(f"{filename}: OpenSceneGraph could not read an image from it")
    return image


def writeNodeFile(node: osg.Node, filename: str) -> None:
    """Writes the scene below node, in the format of the file's extension."""
    if not _flat_write_node(node, filename):
        raise OSError(f"{filename}: OpenSceneGraph could not write a scene to it")


def writeImageFile(image: osg.Image, filename: str) -> None:
    """Writes the image, in the format of the file's extension."""
    if not _flat_write_image(image, filename):
        raise OSError(f"{filename}: OpenSceneGraph could not write an image to it")
