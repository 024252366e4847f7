#!/usr/bin/python3
"""What a verdict costs while a screen reader asks for the whole tree at every event.

    domande.py BENCH_DOMANDE FOLDER-OF-THE-PROGRAM

The reader is this file, too: domande.py --reader PROCESS
"""

import os
import statistics
import subprocess
import sys

from figura import Figura, stampa

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools", "prova"))

from schermo import ErroreSchermo, Schermo  # noqa: E402

FORME = ("FormBarre10", "FormTabella")
ENTRO = 16  # milliseconds, for 95 verdicts of 100


def leggi_tutto(processo):
    """At every event of the program asks for all that there is, and tells the number of objects that
    it has asked about so far."""
    import pyatspi
    from gi.repository import Atspi, GLib
    chiesti = 0
    in_coda = False

    def cammina(oggetto):
        nonlocal chiesti
        try:
            chiesti += 1
            _ = oggetto.name, oggetto.description, oggetto.getState(), oggetto.getRole()
            for i in range(oggetto.childCount):
                cammina(oggetto.getChildAtIndex(i))
        except (GLib.Error, LookupError, RuntimeError, AttributeError):
            pass  # gone meanwhile

    def chiedi():
        nonlocal in_coda
        in_coda = False
        for programma in pyatspi.Registry.getDesktop(0):
            if programma is not None and programma.get_process_id() == processo:
                # Every question goes to the program.
                programma.set_cache_mask(Atspi.Cache.NONE)
                cammina(programma)
        print(chiesti, flush=True)
        return False

    # Events that come during a walk are answered by one walk after it: a reader that asks again
    # from the start at each would never come to an end.
    def udito(_):
        nonlocal in_coda
        if not in_coda:
            in_coda = True
            GLib.idle_add(chiedi)

    pyatspi.Registry.registerEventListener(
        udito, "object:state-changed", "object:property-change", "object:text-changed", "focus")
    print("ready", flush=True)
    pyatspi.Registry.start()


class Lettore:
    """The reader, from here to `chiudi`."""

    def __init__(self, processo):
        self._figlio = subprocess.Popen(["/usr/bin/python3", os.path.abspath(__file__), "--reader",
                                         str(processo)], stdout=subprocess.PIPE, text=True)
        self._figlio.stdout.readline()

    def chiudi(self):
        """Ends it; the number of objects that it has asked about."""
        self._figlio.kill()
        righe = self._figlio.communicate()[0].split()
        return int(righe[-1]) if righe else 0


def fai_sapere():
    """Tells the programs of the desktop that a screen reader is there."""
    from gi.repository import Gio, GLib
    sessione = Gio.bus_get_sync(Gio.BusType.SESSION)
    for quale in "IsEnabled", "ScreenReaderEnabled":
        valore = GLib.Variant("(ssv)", ("org.a11y.Status", quale, GLib.Variant("b", True)))
        sessione.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties",
                           "Set", valore, None, Gio.DBusCallFlags.NONE, -1, None)


def serie(programma, forma):
    """Answers many times on a form; the median, what 95 of them stayed within, and what 95 of
    them had of the processor: what is left on a machine that others keep busy."""
    programma.stdin.write(f"{forma}\n")
    programma.stdin.flush()
    parole = [float(parola) for parola in programma.stdout.readline().split()]
    if not parole:
        raise ErroreSchermo(f"on {forma} the program ended with {programma.wait(10)}")
    tempi, lavoro = sorted(parole[::2]), sorted(parole[1::2])
    quasi_tutti = len(tempi) * 95 // 100 - 1
    return statistics.median(tempi), tempi[quasi_tutti], lavoro[quasi_tutti]


def misura(banco, cartella):
    """Answers alone and beside a reader, on the desktop of the environment, and prints both."""
    fai_sapere()
    programma = subprocess.Popen([banco, cartella], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                 text=True)
    programma.stdout.readline()
    for forma in FORME:
        solo, quasi_solo, lavoro_solo = serie(programma, forma)
        lettore = Lettore(programma.pid)
        try:
            letto, quasi_letto, lavoro = serie(programma, forma)
        finally:
            chiesti = lettore.chiudi()
        if chiesti == 0:
            raise ErroreSchermo("the reader asked about nothing")
        print(f"a verdict on {forma}: median {letto:.2f} ms ({lavoro:.2f} ms of the processor), alone "
              f"{solo:.2f}, 95 of 100 within {quasi_solo:.2f} ms ({lavoro_solo:.2f}); the reader asked "
              f"about {chiesti} objects")
        stampa(Figura("verdict beside a reader, 95 of 100", forma, quasi_letto, "ms", "at most", ENTRO))
    programma.communicate("\n", timeout=10)


def main():
    if sys.argv[1] == "--reader":
        leggi_tutto(int(sys.argv[2]))
        return
    with Schermo(1366, 768):
        misura(sys.argv[1], sys.argv[2])


if __name__ == "__main__":
    try:
        main()
    except (ErroreSchermo, BrokenPipeError) as errore:
        sys.exit(f"domande: {errore}")
