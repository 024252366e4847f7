"""What the program costs while nobody does anything: wake-ups of its threads, and processor time.

By hand, on a display: riposo.py FOLDER-OF-THE-BUILD [FORM...]
"""

import glob
import os
import subprocess
import sys
import time

GUARDATI = 5  # seconds of rest watched on each form
FINESTRE = 3  # times over that steps are watched
QUIETE = 0.3  # seconds until the program sleeps again after its word
AL_SECONDO = 1  # wake-ups a second that a form at rest stays under
PASSO, DI_PIU = 1, 2  # seconds of a step of automatic scanning; wake-ups a second beside the steps
MOUSE, MANUALE, AUTOMATICA, TOCCO = range(4)


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


def guarda(pid, secondi=GUARDATI):
    """Wake-ups a second, and the share of a core in percent, over so many seconds."""
    inizio, sveglie, lavoro = time.monotonic(), risvegli(pid), processore(pid)
    time.sleep(secondi)
    durata = time.monotonic() - inizio
    return ((risvegli(pid) - sveglie) / durata, 100 * (processore(pid) - lavoro) / durata)


def modi(forma):
    """The ways of input in which a form is seen."""
    if forma.endswith("Scansione"):
        return [MANUALE, AUTOMATICA]
    return [TOCCO] if forma.endswith("HK") else [MOUSE]


def tutte(banco, cartella, scelte=()):
    """Every form at rest, or those chosen. Prints each, and answers whether all stay under."""
    elenco = subprocess.run([banco, "--forms"], check=True, capture_output=True, text=True)
    processo = subprocess.Popen([banco, cartella], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                text=True)
    bene = True
    try:
        for forma in scelte or elenco.stdout.split():
            for modo in modi(forma):
                bene = una(processo, forma, modo) and bene
    except BrokenPipeError:
        return False
    finally:
        processo.communicate(timeout=10)
    return bene


def una(processo, forma, modo):
    processo.stdin.write(f"{forma} {modo}\n")
    processo.stdin.flush()
    if processo.stdout.readline() != "ready\n":
        print(f"FAILED: at rest on {forma} the program ended with {processo.wait()}", flush=True)
        raise BrokenPipeError
    time.sleep(QUIETE)
    # Of the steps the quietest time counts: the display's thread and the program's may want one lock
    # at once, on a busy machine more often, and then one of them sleeps once more.
    volte = FINESTRE if modo == AUTOMATICA else 1
    sveglie, parte = min(guarda(processo.pid) for _ in range(volte))
    passi = 1 / PASSO if modo == AUTOMATICA else 0
    limite = passi + DI_PIU if modo == AUTOMATICA else AL_SECONDO
    bene = sveglie <= limite if passi else sveglie < limite
    come = {MANUALE: ", manual scanning", AUTOMATICA: ", automatic scanning"}.get(modo, "")
    print(f"at rest on {forma}{come}: {sveglie:.2f} wake-ups a second "
          f"({'at most' if passi else 'under'} {limite:g}), {parte:.3f} % of a core"
          f"{'' if bene else ' TOO MANY'}", flush=True)
    return bene


if __name__ == "__main__":
    CARTELLA = sys.argv[1]
    sys.exit(not tutte(os.path.join(CARTELLA, "bench", "bench_riposo"),
                       os.path.join(CARTELLA, "somme"), sys.argv[2:]))
