"""What is on the screen, in short: taken without writing a picture, so that one may look often."""

import ctypes
import ctypes.util
import hashlib
import os


class _Immagine(ctypes.Structure):
    """The beginning of an image of the window system's library."""

    _fields_ = [("larghezza", ctypes.c_int), ("altezza", ctypes.c_int), ("scarto", ctypes.c_int),
                ("formato", ctypes.c_int), ("punti", ctypes.c_void_p), ("ordine", ctypes.c_int),
                ("unita", ctypes.c_int), ("ordine_dei_bit", ctypes.c_int), ("imbottitura", ctypes.c_int),
                ("profondita", ctypes.c_int), ("byte_per_riga", ctypes.c_int)]


TUTTI_I_PIANI, A_PUNTI = ctypes.c_ulong(-1), 2  # as XGetImage has them


class Vista:
    """Looks at the display that the environment names."""

    def __init__(self):
        x = self._x = ctypes.CDLL(ctypes.util.find_library("X11"))
        x.XOpenDisplay.restype = x.XGetImage.restype = ctypes.c_void_p
        x.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = ctypes.c_void_p(x.XOpenDisplay(os.environ["DISPLAY"].encode()))
        if not self._display:
            raise OSError("no display: " + os.environ["DISPLAY"])
        self._radice = ctypes.c_ulong(x.XDefaultRootWindow(self._display))
        self._misure = x.XDisplayWidth(self._display, 0), x.XDisplayHeight(self._display, 0)

    def chiudi(self):
        self._x.XCloseDisplay(self._display)

    def adesso(self):
        """A text that is another one for every other picture."""
        dove = self._x.XGetImage(self._display, self._radice, 0, 0, *self._misure, TUTTI_I_PIANI, A_PUNTI)
        immagine = ctypes.cast(dove, ctypes.POINTER(_Immagine)).contents
        try:
            punti = ctypes.string_at(immagine.punti, immagine.byte_per_riga * immagine.altezza)
        finally:
            self._x.XDestroyImage(ctypes.c_void_p(dove))
        return hashlib.sha1(punti).hexdigest()
