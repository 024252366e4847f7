"""What the program costs while nobody does anything: wake-ups of its threads, and processor time.

    riposo.py BENCH_RIPOSO FOLDER-OF-THE-PROGRAM [FORM...]

Forms at rest disturb nobody, so that several are watched side by side, each in a program of its own
on a desktop of its own. All of a round are shown, then all rest, then all are watched.
"""

import contextlib
import glob
import os
import subprocess
import sys
import time

from figura import Figura, quanti, stampa

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools", "prova"))

from schermo import ErroreSchermo, Schermo  # noqa: E402

CORSIE = 20  # forms that are watched side by side
GUARDATI = quanti(5, 2)  # seconds of rest watched on each form
FINESTRE = quanti(3, 2)  # times over that steps are watched
QUIETE = 0.3  # seconds until the program sleeps again after its word
AL_SECONDO = 1  # wake-ups a second that a form at rest stays under
PASSO, DI_PIU = 1, 2  # seconds of a step of automatic scanning; wake-ups a second beside the steps
MANUALE, AUTOMATICA = 1, 2  # ways of input, as the state numbers them


def risvegli(pid):
    """How often the threads of a process have been woken."""
    somma = 0
    for stato in glob.glob(f"/proc/{pid}/task/*/status"):
        with open(stato, encoding="ascii") as righe:
            somma += sum(int(r.split()[1]) for r in righe
                         if r.startswith("voluntary_ctxt_switches"))
    return somma


def processore(pid):
    """Seconds of processor time that the threads of a process have had."""
    somma = 0
    for stato in glob.glob(f"/proc/{pid}/task/*/schedstat"):
        with open(stato, encoding="ascii") as riga:
            somma += int(riga.read().split()[0])
    return somma / 1e9


def guarda_tutti(pid, secondi):
    """Of each process wake-ups a second, and the share of a core in percent, over a number of seconds."""
    prima = [(time.monotonic(), risvegli(p), processore(p)) for p in pid]
    time.sleep(secondi)
    visti = []
    for p, (inizio, sveglie, lavoro) in zip(pid, prima):
        durata = time.monotonic() - inizio
        visti.append(((risvegli(p) - sveglie) / durata, 100 * (processore(p) - lavoro) / durata))
    return visti


def guarda(pid, secondi):
    """The same of one process."""
    return guarda_tutti([pid], secondi)[0]


def le_coppie(banco, scelte):
    """Form and way of input, for every way in which each form is seen, or each of those chosen."""
    elenco = subprocess.run([banco, "--forms"], check=True, capture_output=True, text=True)
    for riga in elenco.stdout.splitlines():
        forma, *modi = riga.split()
        if not scelte or forma in scelte:
            yield from ((forma, int(modo)) for modo in modi)


def giri(coppie):
    """Rounds of at most CORSIE pairs of a form and a way of input; with steps, or without."""
    for passi in (False, True):
        uguali = [coppia for coppia in coppie if (coppia[1] == AUTOMATICA) == passi]
        for i in range(0, len(uguali), CORSIE):
            yield uguali[i:i + CORSIE]


class Corsia:
    """A program that shows the forms one after the other, on the desktop of this moment."""

    def __init__(self, banco, cartella):
        # Nobody listens to the accessibility tree.
        ambiente = {n: v for n, v in os.environ.items() if n != "QT_LINUX_ACCESSIBILITY_ALWAYS_ON"}
        self._processo = subprocess.Popen([banco, cartella], stdin=subprocess.PIPE, env=ambiente,
                                          stdout=subprocess.PIPE, text=True)
        self.pid = self._processo.pid

    def mostra(self, forma, modo):
        """Asks for a form."""
        self._processo.stdin.write(f"{forma} {modo}\n")
        self._processo.stdin.flush()

    def aspetta(self, forma):
        """Until that form has stood on the screen for a while."""
        if self._processo.stdout.readline() != "ready\n":
            raise ErroreSchermo(f"on {forma} the program ended with {self._processo.wait()}")

    def chiudi(self):
        """Ends the program."""
        with contextlib.suppress(BrokenPipeError, subprocess.TimeoutExpired):
            self._processo.communicate(timeout=10)
        self._processo.kill()
        self._processo.wait()


def racconta(forma, modo, sveglie, parte):
    """Prints what was seen of a form."""
    come = {MANUALE: ", manual scanning", AUTOMATICA: ", automatic scanning"}.get(modo, "")
    print(f"{forma}{come}: {parte:.3f} % of a core")
    if modo == AUTOMATICA:
        stampa(Figura("at rest but for the steps of scanning", forma, sveglie, "wake-ups a second",
                      "at most", 1 / PASSO + DI_PIU))
    else:
        stampa(Figura("at rest", forma + come, sveglie, "wake-ups a second", "under", AL_SECONDO))


def giro(corsie, coppie):
    """One round: each form in a lane of its own."""
    corsie = corsie[:len(coppie)]
    for corsia, (forma, modo) in zip(corsie, coppie):
        corsia.mostra(forma, modo)
    for corsia, (forma, _) in zip(corsie, coppie):
        corsia.aspetta(forma)
    time.sleep(QUIETE)
    # Of the steps the quietest time counts: the display's thread and the program's may want one lock
    # at once, on a busy machine more often, and then one of them sleeps once more.
    volte = FINESTRE if coppie[0][1] == AUTOMATICA else 1
    viste = [guarda_tutti([corsia.pid for corsia in corsie], GUARDATI) for _ in range(volte)]
    for (forma, modo), visto in zip(coppie, zip(*viste)):
        racconta(forma, modo, *min(visto))


def tutte(banco, cartella, scelte=()):
    """Every form at rest, or those chosen."""
    previsti = list(giri(list(le_coppie(banco, scelte))))
    if not previsti:
        sys.exit(f"at rest: no form is called {' or '.join(scelte)}")
    with contextlib.ExitStack() as aperte:
        corsie = []
        for _ in range(max(len(coppie) for coppie in previsti)):
            aperte.enter_context(Schermo(1366, 768))
            corsie.append(Corsia(banco, cartella))
            aperte.callback(corsie[-1].chiudi)
        for coppie in previsti:
            giro(corsie, coppie)


if __name__ == "__main__":
    try:
        tutte(sys.argv[1], sys.argv[2], sys.argv[3:])
    except (ErroreSchermo, BrokenPipeError) as errore:
        sys.exit(f"at rest: {errore}")
