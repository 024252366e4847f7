"""Runs the measurements on a desktop of their own and prints what they find."""

import glob
import os
import signal
import subprocess
import sys
import time

import domande
import riposo

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tools", "prova"))

from schermo import ErroreSchermo, Schermo  # noqa: E402

# Seconds after the last event, for a sound to end and its device to close; and of rest watched.
QUIETE, GUARDATI = 5, 10


def esegui(misura):
    """Runs one measurement; whether it came to its end and found all as it should be."""
    stato = subprocess.run(misura, check=False).returncode
    if stato:
        come = f"was ended by {signal.Signals(-stato).name}" if stato < 0 else f"ended with {stato}"
        print(f"FAILED: {os.path.basename(misura[0])} {come}", flush=True)
    return stato == 0


def dopo_i_suoni(schermo, programma, cartella):
    """Whether the program sleeps on the bars, after a wrong and a right answer with their sounds."""
    from albero import Albero
    from giocatore import AVVIO, Giocatore
    from partite import PARTITE
    processo = schermo.avvia(programma, stderr=subprocess.DEVNULL)
    with open(os.devnull, "w", encoding="ascii") as nulla:
        voce, sys.stdout = sys.stdout, nulla
        try:
            giocatore = Giocatore(schermo, Albero(processo), cartella)
            giocatore.vai(AVVIO)
            PARTITE["barre"].gioca(giocatore)
        finally:
            sys.stdout = voce
    time.sleep(QUIETE)
    sveglie, parte = riposo.guarda(processo.pid, GUARDATI)
    if processo.poll() is not None:
        raise ErroreSchermo(f"the program ended at rest, with {processo.returncode}")
    print(f"at rest on the bars, after sounds: {sveglie:.2f} wake-ups a second (under 1), "
          f"{parte:.3f} % of a core", flush=True)
    processo.termina()
    return sveglie < riposo.AL_SECONDO


def main():
    cartella = sys.argv[1]
    programma = os.path.join(cartella, "somme", "somme")
    misure = [[os.path.join(cartella, "bench", "bench_avvio"), programma,
               os.path.join(cartella, "bench", "bench_vuoto")],
              [os.path.join(cartella, "bench", "bench_forme"), os.path.dirname(programma)],
              [os.path.join(cartella, "bench", "bench_cambio"), os.path.dirname(programma)],
              [os.path.join(cartella, "bench", "bench_scansione"), os.path.dirname(programma)],
              [os.path.join(cartella, "bench", "bench_tocco"), os.path.dirname(programma)],
              [os.path.join(cartella, "bench", "bench_filmati"),
               *sorted(glob.glob(os.path.join(os.path.dirname(programma), "swf", "*.swf")))],
              [os.path.join(cartella, "bench", "bench_stampa")],
              [os.path.join(cartella, "bench", "bench_visite")]]
    try:
        with Schermo(1366, 768):
            # As on a desktop without assistive technology: nobody listens to the tree.
            os.environ.pop("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", None)
            tutte = all([esegui(misura) for misura in misure])
            tutte = riposo.tutte(os.path.join(cartella, "bench", "bench_riposo"),
                                 os.path.dirname(programma)) and tutte
        with Schermo(1366, 768):
            tutte = domande.misura(os.path.join(cartella, "bench", "bench_domande"),
                                   os.path.dirname(programma)) and tutte
        with Schermo(1366, 768) as schermo:
            tutte = dopo_i_suoni(schermo, programma, os.path.join("build", "immagini")) and tutte
    except ErroreSchermo as errore:
        print(f"FAILED: {errore}", flush=True)
        return 1
    return 0 if tutte else 1


if __name__ == "__main__":
    sys.exit(main())
