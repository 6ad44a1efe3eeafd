# Written, not generated: offscreen pictures. The drawing is OSG's (the offscreenViewer and
# frameImage rows); what is here finds an X display, keeps one viewer per picture size and
# places the camera.
#
# The annotations are evaluated only when asked for (Python 3.14): they name the stub's types.
import atexit as _atexit
import os as _os
import select as _select
import shutil as _shutil
import subprocess as _subprocess
import tempfile as _tempfile

_display = None     # the X display pictures are drawn on: $DISPLAY, or our own Xvfb's
_xvfb = None        # that Xvfb
_keep = []          # our own connection to that Xvfb
_viewers = {}       # (width, height) -> (viewer, the clear colour OSG gave its camera)


def _fail(what):
    raise RuntimeError(f"osgViewer.render: {what}")


def _x11():
    import ctypes
    x11 = ctypes.CDLL("libX11.so.6")  # OSG's X11 graphics contexts have loaded it already
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
    x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
    return x11


def _start_xvfb():
    """A private X server: Xvfb names the display it found free through -displayfd. With
    -terminate it stops once its last client has gone, never under a graphics context still open
    (which Xlib would answer by exiting). A connection of our own keeps it while the process
    runs, whatever viewers come and go; at exit, _close lets go of it."""
    global _xvfb
    path = _shutil.which("Xvfb")
    if path is None:
        _fail("no display: DISPLAY is unset and Xvfb is not on PATH (Debian's package xvfb)")
    read, write = _os.pipe()
    log = _tempfile.TemporaryFile()
    try:
        # Its own session: a Ctrl-C meant for the script does not stop it.
        _xvfb = _subprocess.Popen([path, "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp",
                                   "-terminate"], pass_fds=(write,), stdin=_subprocess.DEVNULL, stdout=log, stderr=log,
                                  start_new_session=True)
    finally:
        _os.close(write)
    number = b""
    with _os.fdopen(read, "rb") as pipe:
        while not number.endswith(b"\n") and _select.select([pipe], [], [], 30)[0]:
            chunk = pipe.read1(16)
            if not chunk:
                break
            number += chunk
    if not number.strip().isdigit():
        _xvfb.kill()
        _xvfb.wait()
        _xvfb = None
        log.seek(0)
        said = log.read().decode(errors="replace").strip().splitlines()
        _fail("no display: Xvfb did not start" + (f" ({said[-1]})" if said else ""))
    log.close()
    display = ":" + number.strip().decode()
    _keep.append(_x11().XOpenDisplay(display.encode()))
    return display


def _display_name():
    global _display
    if _xvfb is not None and _xvfb.poll() is not None:
        _display = None  # ours stopped when its last client went: a failed context's, say
    if _display is None:
        _display = _os.environ.get("DISPLAY") or _start_xvfb()
    return _display


def _opens(display):
    """Whether an X client can connect to the display at all."""
    x11 = _x11()
    connection = x11.XOpenDisplay(display.encode())
    if connection:
        x11.XCloseDisplay(connection)
    return bool(connection)


def _offscreen(width, height):
    """The viewer that draws pictures of this size, made on first use."""
    if type(width) is not int or type(height) is not int or width <= 0 or height <= 0:
        raise ValueError(f"osgViewer.render: the picture's size must be positive integers, not {width!r} x {height!r}")
    key = (width, height)
    if key not in _viewers:
        display = _display_name()
        viewer = offscreenViewer(width, height, display)
        if viewer is None:
            if not _opens(display):
                _fail(f"no display: the X display {display!r} cannot be opened")
            _fail(f"the graphics context could not be created: OpenGL pbuffer of {width} x {height} on X display "
                  f"{display!r} (is Mesa's libgl1-mesa-dri installed?)")
        _viewers[key] = (viewer, osg.Vec4f(*viewer.getCamera().getClearColor()))  # a copy: the camera's changes
    return _viewers[key]


def _close():
    """At exit: the viewers and their graphics contexts go while the interpreter still runs, then
    our hold on Xvfb, which stops once no context of ours is left open."""
    _viewers.clear()
    while _keep:
        connection = _keep.pop()
        if connection:
            _x11().XCloseDisplay(connection)


_atexit.register(_close)


def _vector(v, cls):
    return v if isinstance(v, cls) else cls(*v)


def render(node: osg.Node | None, width: int, height: int, eye: osg.Vec3d | Sequence[float] | None = None,
           center: osg.Vec3d | Sequence[float] | None = None, up: osg.Vec3d | Sequence[float] | None = None,
           clear: osg.Vec4f | Sequence[float] | None = None) -> osg.Image:
    """The node drawn offscreen as a width x height RGBA image (its bottom row first, as OSG's
    images are). The camera looks from eye at center with up upwards; each left unset is OSG's
    home position for the node, which frames its bounding sphere. clear is the background,
    OSG's own clear colour by default. Without DISPLAY, the pictures are drawn on a private
    Xvfb, started on the first picture and stopped at exit."""
    viewer, default_clear = _offscreen(width, height)
    camera = viewer.getCamera()
    camera.setClearColor(default_clear if clear is None else _vector(clear, osg.Vec4f))
    if eye is None or center is None or up is None:
        home = TrackballManipulator()
        home.setNode(node)
        home.computeHomePosition(camera)
        home_eye, home_center, home_up = home.getHomePosition()
        eye, center, up = (home_eye if eye is None else eye, home_center if center is None else center,
                           home_up if up is None else up)
    camera.setViewMatrixAsLookAt(_vector(eye, osg.Vec3d), _vector(center, osg.Vec3d), _vector(up, osg.Vec3d))
    viewer.setSceneData(node)
    return frameImage(viewer)
