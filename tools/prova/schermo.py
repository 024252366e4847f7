"""A desktop of its own for a program: virtual display, window manager, buses, pictures of it."""

import os
import select
import shutil
import signal
import subprocess
import tempfile
import time


class ErroreSchermo(Exception):
    """The desktop could not be brought up; the text says which part."""


class Schermo:
    """Everything between entering and leaving; nothing of it is left behind.

    The environment of this process is set for the new desktop too, so that the accessibility tree
    is read from it; therefore make the Schermo before anything that reads the tree is imported.
    """

    def __init__(self, larghezza=1366, altezza=768):
        self._misure = f"{larghezza}x{altezza}x24"
        self._processi = []
        self._prima = dict(os.environ)
        self._cartella = None

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

    def __exit__(self, *_):
        for processo in reversed(self._processi):
            termina(processo)
        self._processi.clear()
        os.environ.clear()
        os.environ.update(self._prima)
        if self._cartella:
            shutil.rmtree(self._cartella, ignore_errors=True)

    def avvia(self, *comando, **opzioni):
        """Starts a program on this desktop; it is ended with the desktop, if not before."""
        try:
            processo = subprocess.Popen(comando, stdin=subprocess.DEVNULL, **opzioni)
        except OSError as errore:
            raise ErroreSchermo(f"{comando[0]}: {errore.strerror}") from errore
        self._processi.append(processo)
        return processo

    def copia(self, programma):
        """A copy of the program with its folder, which goes with the desktop.

        Each copy is a program of its own: it runs beside others, and its folder can be changed.
        """
        cartella = os.path.join(self._cartella, "programma")
        shutil.copytree(os.path.dirname(os.path.abspath(programma)), cartella)
        return os.path.join(cartella, os.path.basename(programma))

    def fotografa(self, percorso):
        """Writes a picture of the whole screen; the format is that of the name."""
        os.makedirs(os.path.dirname(percorso) or ".", exist_ok=True)
        subprocess.run(["import", "-window", "root", percorso], check=True, timeout=60)

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


def termina(processo, secondi=3):
    """Ends a process, by force where it does not go by itself."""
    if processo.poll() is not None:
        return
    processo.send_signal(signal.SIGTERM)
    try:
        processo.wait(secondi)
    except subprocess.TimeoutExpired:
        processo.kill()
        processo.wait()


def _prima_riga(canale, chi, secondi=20):
    pronto, _, _ = select.select([canale], [], [], secondi)
    riga = canale.readline().strip() if pronto else ""
    if not riga:
        raise ErroreSchermo(f"{chi} does not come up")
    return riga
