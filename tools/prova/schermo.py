"""A desktop of its own for a program: virtual display, window manager, buses, pictures of it."""

import os
import select
import shutil
import signal
import subprocess
import tempfile
import time

from vista import Vista


class ErroreSchermo(Exception):
    """The desktop could not be brought up; the text says which part."""


class Processo(subprocess.Popen):
    """A program on the desktop, and whether its end was asked for."""

    _voluta = False

    def termina(self, secondi=3):
        """Ends it, by force where it does not go by itself."""
        if self.poll() is not None:
            return
        self._voluta = True
        self.terminate()
        try:
            self.wait(secondi)
        except subprocess.TimeoutExpired:
            self.kill()
            self.wait()

    def uccidi(self):
        """Ends it in the middle of whatever it does."""
        self._voluta = True
        self.kill()
        self.wait()

    def caduto(self):
        """The name of the signal that ended it unasked; None where none did."""
        stato = self.poll() or 0
        if stato >= 0 or (self._voluta and -stato in (signal.SIGTERM, signal.SIGKILL)):
            return None
        return signal.Signals(-stato).name


class Schermo:
    """Everything between entering and leaving; nothing of it is left behind.

    A program that a signal has ended meanwhile, unasked, is an error when the desktop goes.

    The environment of this process is set for the new desktop too, so that the accessibility tree
    is read from it.
    """

    # Whether alt+F4 closes a window.
    chiude_finestre = True

    def __init__(self, larghezza=1366, altezza=768):
        self._misure = f"{larghezza}x{altezza}x24"
        self._processi = []
        self._prima = dict(os.environ)
        self._cartella = None
        self._vista = None

    def __enter__(self):
        try:
            self._cartella = tempfile.mkdtemp(prefix="schermo-")
            os.chmod(self._cartella, 0o700)
            for nome in ("WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS", "XDG_SESSION_TYPE"):
                os.environ.pop(nome, None)
            os.environ["XDG_RUNTIME_DIR"] = self._cartella
            os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
            os.environ["DISPLAY"] = ":" + self._avvia_display()
            os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._avvia_bus()
            self._avvia_finestre()
        except Exception:
            self.__exit__()
            raise
        return self

    def __exit__(self, *errore):
        caduti = []
        if self._vista:
            self._vista.chiudi()
            self._vista = None
        for processo in reversed(self._processi):
            processo.termina()
            if processo.caduto():
                caduti.append(f"{processo.args[0]} was ended by {processo.caduto()}")
        self._processi.clear()
        os.environ.clear()
        os.environ.update(self._prima)
        if self._cartella:
            shutil.rmtree(self._cartella, ignore_errors=True)
        if caduti and not any(errore):
            raise ErroreSchermo("; ".join(caduti))

    def avvia(self, *comando, **opzioni):
        """Starts a program on this desktop; it is ended with the desktop, if not before.

        Gives a Processo.
        """
        opzioni.setdefault("env", self._per_i_programmi())
        try:
            processo = Processo(comando, stdin=subprocess.DEVNULL, **opzioni)
        except OSError as errore:
            raise ErroreSchermo(f"{comando[0]}: {errore.strerror}") from errore
        self._processi.append(processo)
        return processo

    def albero(self, processo):
        """What a program that was started here shows."""
        # Only who reads the tree needs its library.
        from albero import Albero
        return Albero(processo)

    def scarto(self, albero):
        """How far the places of the display lie from those that a program tells of itself."""
        return 0, 0

    def attendi_il_fuoco(self):
        """Until a window has the keyboard again, where another has gone; most desktops see to it at once."""

    def _per_i_programmi(self):
        """The environment of what is started here; None for that of this process."""

    def copia(self, programma):
        """A copy of the program with its folder, which goes with the desktop.

        Each copy is a program of its own: it runs beside others, and its folder can be changed.
        """
        cartella = os.path.join(self._cartella, "programma")
        shutil.copytree(os.path.dirname(os.path.abspath(programma)), cartella)
        return os.path.join(cartella, os.path.basename(programma))

    def fotografa(self, percorso):
        """Writes a picture of the whole screen, in the format PNG."""
        os.makedirs(os.path.dirname(percorso) or ".", exist_ok=True)
        self._sguardo().fotografa(percorso)

    def vista(self):
        """What is on the screen, in short: another text for every other picture."""
        return self._sguardo().adesso()

    def _sguardo(self):
        self._vista = self._vista or Vista()
        return self._vista

    def _avvia_display(self):
        # The server looks for a free number itself and tells it when it is ready.
        leggi, scrivi = os.pipe()
        self.avvia("Xvfb", "-displayfd", str(scrivi), "-screen", "0", self._misure,
                   "-nolisten", "tcp", "-noreset", pass_fds=(scrivi,), stderr=subprocess.DEVNULL)
        os.close(scrivi)
        with os.fdopen(leggi) as canale:
            numero = _prima_riga(canale, "the virtual display (Xvfb)")
        return numero

    def _avvia_bus(self):
        bus = self.avvia("dbus-daemon", "--session", f"--address=unix:tmpdir={self._cartella}",
                         "--nofork", "--nopidfile", "--print-address",
                         stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        with bus.stdout:
            return _prima_riga(bus.stdout, "the message bus (dbus-daemon)")

    def _avvia_finestre(self):
        self.avvia("openbox", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        # Without a window manager a window never gets the keyboard.
        fine = time.monotonic() + 20
        while time.monotonic() < fine:
            risposta = subprocess.run(["xdotool", "get_num_desktops"], capture_output=True,
                                      check=False)
            if risposta.returncode == 0:
                return
            time.sleep(0.05)
        raise ErroreSchermo("the window manager (openbox) does not come up")


def _prima_riga(canale, chi, secondi=20):
    pronto, _, _ = select.select([canale], [], [], secondi)
    riga = canale.readline().strip() if pronto else ""
    if not riga:
        raise ErroreSchermo(f"{chi} does not come up")
    return riga
