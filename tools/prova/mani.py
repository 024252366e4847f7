"""Mouse and keyboard, as a pupil uses them: events of the display server at places of the screen."""

import ctypes
import time

from vista import X11, ErroreDisplay, apri_display

# The keys that go together with others; a display knows two of each.
CON_ALTRI = {"alt": "Alt_L", "ctrl": "Control_L", "shift": "Shift_L"}
XTEST = "libXtst.so.6"
SINISTRO = 1  # the button of the mouse
STESSO_SCHERMO = -1
BATTUTA = 0.012  # seconds from the press of a key to its release
SUBITO = ctypes.c_ulong(0)


class _Dispositivi:
    """The keyboard and the mouse of a display, as its extension XTEST works them.

    What is asked of them has come to the window system when the call returns.
    """

    def __init__(self):
        """Those of the display that the environment names."""
        self._x, self._xtest = ctypes.CDLL(X11), ctypes.CDLL(XTEST)
        self._x.XStringToKeysym.restype = ctypes.c_ulong
        self._x.XKeysymToKeycode.restype = ctypes.c_ubyte
        self._display = apri_display()

    def tasto(self, nome, giu):
        """Presses a key or lets it go; names as the display has them: space, Return, F10."""
        simbolo = self._x.XStringToKeysym(CON_ALTRI.get(nome, nome).encode())
        codice = self._x.XKeysymToKeycode(self._display, ctypes.c_ulong(simbolo))
        if not codice:
            raise ErroreDisplay(f"no key is called {nome!r}")
        self._xtest.XTestFakeKeyEvent(self._display, codice, giu, SUBITO)
        self._x.XSync(self._display, False)

    def batti(self, tasti):
        """Presses keys one after the other and lets them go."""
        for nome in tasti:
            self.tasto(nome, True)
        time.sleep(BATTUTA)
        for nome in reversed(tasti):
            self.tasto(nome, False)

    def bottone(self, giu):
        self._xtest.XTestFakeButtonEvent(self._display, SINISTRO, giu, SUBITO)
        self._x.XSync(self._display, False)

    def muovi(self, x, y):
        self._xtest.XTestFakeMotionEvent(self._display, STESSO_SCHERMO, int(x), int(y), SUBITO)
        self._x.XSync(self._display, False)


class Tastiera:
    """Works on the desktop that the environment names."""

    # Between two events, so that no two clicks make a double click of the desktop.
    PAUSA = 0.08

    def __init__(self):
        self._dispositivi = None

    def giu(self, tasto):
        """Presses a key and holds it; names as the display has them: space, Return, F10."""
        self.gesto("tasto", tasto, True)

    def su(self, tasto):
        self.gesto("tasto", tasto, False)

    def batti(self, tasto):
        """A tap; also with modifiers: alt+F4."""
        self.gesto("batti", tasto.split("+"))
        time.sleep(self.PAUSA)

    def gesto(self, che_cosa, *come):
        """What a hand does at once; che_cosa is what the devices call it."""
        self._dispositivi = self._dispositivi or _Dispositivi()
        getattr(self._dispositivi, che_cosa)(*come)


class Mani(Tastiera):
    """A keyboard and a mouse.

    scarto: asked at each click, how far the display's places lie from those that programs tell, (x, y).
    """

    def __init__(self, scarto=lambda: (0, 0)):
        super().__init__()
        self._scarto = scarto

    def clicca(self, posto):
        """One click of the left button in the middle of a place (x, y, width, height)."""
        x, y, larghezza, altezza = posto
        oltre_x, oltre_y = self._scarto()
        self.gesto("muovi", x + larghezza // 2 + oltre_x, y + altezza // 2 + oltre_y)
        self.gesto("bottone", True)
        time.sleep(self.PAUSA)
        self.gesto("bottone", False)
        time.sleep(self.PAUSA)
