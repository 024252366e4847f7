"""What is on the screen: as a picture, or in short, so that one may look often."""

import ctypes
import hashlib
import os
import struct
import zlib


class _Immagine(ctypes.Structure):
    """The beginning of an image of the window system's library."""

    _fields_ = [("larghezza", ctypes.c_int), ("altezza", ctypes.c_int), ("scarto", ctypes.c_int),
                ("formato", ctypes.c_int), ("punti", ctypes.c_void_p), ("ordine", ctypes.c_int),
                ("unita", ctypes.c_int), ("ordine_dei_bit", ctypes.c_int), ("imbottitura", ctypes.c_int),
                ("profondita", ctypes.c_int), ("byte_per_riga", ctypes.c_int)]


X11 = "libX11.so.6"
TUTTI_I_PIANI, A_PUNTI = ctypes.c_ulong(-1), 2  # as XGetImage has them


class ErroreDisplay(Exception):
    """The display does not do what it is asked for; the text says what."""


def apri_display():
    """A connection with the display that the environment names."""
    x = ctypes.CDLL(X11)
    x.XOpenDisplay.restype = ctypes.c_void_p
    display = ctypes.c_void_p(x.XOpenDisplay(os.environ["DISPLAY"].encode()))
    if not display:
        raise ErroreDisplay("no display: " + os.environ["DISPLAY"])
    return display


class Vista:
    """Looks at the display that the environment names."""

    def __init__(self):
        x = self._x = ctypes.CDLL(X11)
        x.XGetImage.restype = ctypes.c_void_p
        x.XDefaultRootWindow.restype = ctypes.c_ulong
        self._display = apri_display()
        self._radice = ctypes.c_ulong(x.XDefaultRootWindow(self._display))
        self._misure = x.XDisplayWidth(self._display, 0), x.XDisplayHeight(self._display, 0)

    def chiudi(self):
        self._x.XCloseDisplay(self._display)

    def adesso(self):
        """A text that is another one for every other picture."""
        return hashlib.sha1(self._punti()[0]).hexdigest()

    def fotografa(self, percorso):
        """Writes a picture in the format PNG, packed quickly: it would else take more than a game."""
        punti, per_riga = self._punti()
        larghezza, altezza = self._misure
        # Four bytes a pixel, blue first; the file has three, red first.
        colori = bytearray(len(punti) // 4 * 3)
        for posto in range(3):
            colori[posto::3] = punti[2 - posto::4]
        riga = per_riga // 4 * 3
        righe = b"".join(b"\0" + colori[da:da + larghezza * 3]
                         for da in range(0, altezza * riga, riga))
        with open(percorso, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            for nome, che_cosa in ((b"IHDR", struct.pack(">2I5B", larghezza, altezza, 8, 2, 0, 0, 0)),
                                   (b"IDAT", zlib.compress(righe, 1)), (b"IEND", b"")):
                file.write(struct.pack(">I", len(che_cosa)) + nome + che_cosa
                           + struct.pack(">I", zlib.crc32(nome + che_cosa)))

    def _punti(self):
        """The pixels of the screen from the top, and how many bytes are a line of them."""
        dove = self._x.XGetImage(self._display, self._radice, 0, 0, *self._misure, TUTTI_I_PIANI, A_PUNTI)
        immagine = ctypes.cast(dove, ctypes.POINTER(_Immagine)).contents
        try:
            return (ctypes.string_at(immagine.punti, immagine.byte_per_riga * immagine.altezza),
                    immagine.byte_per_riga)
        finally:
            self._x.XDestroyImage(ctypes.c_void_p(dove))
