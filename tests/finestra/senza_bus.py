#!/usr/bin/python3
"""Starts the program where nobody listens for assistive technology, and answers a question in it.

    senza_bus.py <program>

Once with a bus as a desktop has it, then without a session bus, with one that knows no service of
accessibility, with addresses behind which nobody is. Ends with 0 when the program took no more time
anywhere than with the bus, gave its verdict, said nothing on the error stream, and ended as it was
asked to.
"""

import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../tools/prova"))

from mani import Tastiera  # noqa: E402
from schermo import Schermo  # noqa: E402

# The seconds that a start and an answer may take more than with a bus. Whoever waits for a bus waits
# for 25.
MARGINE = 3
LIMITE = 60  # seconds until anything counts as hung
PASSO = 0.15  # seconds from one look at the screen to the next
# A session bus that starts no service.
SENZA_SERVIZI = """<busconfig><type>session</type><listen>unix:tmpdir={0}</listen>
<policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/>
</policy></busconfig>"""
# The line about a machine without sound comes when it comes, and has nothing to do with a bus.
SUONO = "No sound:"
NESSUNO = "unix:path=/nonexistent/bus"


def bus_senza_servizi(schermo, cartella):
    """The address of a new bus."""
    scritta = os.path.join(cartella, "bus.conf")
    with open(scritta, "w", encoding="utf-8") as file:
        file.write(SENZA_SERVIZI.format(cartella))
    bus = schermo.avvia("dbus-daemon", f"--config-file={scritta}", "--nofork", "--print-address",
                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return bus.stdout.readline().strip()


def ambienti(schermo):
    """What the program is started with, by name; the first is the desktop's own."""
    cartella = os.environ["XDG_RUNTIME_DIR"]
    yield "a bus", {}
    vuota = os.path.join(cartella, "vuota")
    os.mkdir(vuota, 0o700)
    yield "no session bus", {"DBUS_SESSION_BUS_ADDRESS": None, "XDG_RUNTIME_DIR": vuota}
    yield "a session bus that has gone", {"DBUS_SESSION_BUS_ADDRESS": NESSUNO}
    yield "an accessibility bus that has gone", {"AT_SPI_BUS_ADDRESS": NESSUNO}
    yield "a bus without services", {
        "DBUS_SESSION_BUS_ADDRESS": bus_senza_servizi(schermo, cartella)}


def guarda(schermo):
    """What is on the screen a moment later, in short."""
    time.sleep(PASSO)
    return schermo.vista()


def cambia(schermo, prima):
    """Waits until the screen shows something else, and shows it twice. Returns what."""
    fine = time.monotonic() + LIMITE
    ultima, adesso = None, prima
    while adesso in (prima, None) or adesso != ultima:
        if time.monotonic() > fine:
            raise SystemExit("the screen does not change")
        ultima, adesso = adesso, guarda(schermo)
    return adesso


def prova(schermo, programma, differenze):
    """Plays once; the seconds to the first form and to the verdict, and the lines told."""
    ambiente = {**os.environ, **differenze}
    ambiente = {nome: valore for nome, valore in ambiente.items() if valore is not None}
    tasti = Tastiera()
    vuoto = cambia(schermo, None)
    prima = time.monotonic()
    processo = schermo.avvia(programma, env=ambiente, stderr=subprocess.PIPE, text=True)
    pagina = cambia(schermo, vuoto)
    avvio = time.monotonic() - prima
    # Start, main menu, menu of the bars; none of them is ever the answer to a sum.
    for _ in range(3):
        tasti.batti("Return")
        pagina = cambia(schermo, pagina)
    prima = time.monotonic()
    tasti.batti("Return")
    cambia(schermo, pagina)
    verdetto = time.monotonic() - prima
    tasti.batti("alt+F4")
    _, righe = processo.communicate(timeout=LIMITE)
    if processo.returncode != 0:
        raise SystemExit(f"the program ended with {processo.returncode}: {righe}")
    return avvio, verdetto, [r for r in righe.splitlines() if not r.startswith(SUONO)]


def main():
    guai = []
    with Schermo() as schermo:
        programma = schermo.copia(sys.argv[1])
        con_bus = None
        for nome, differenze in ambienti(schermo):
            avvio, verdetto, righe = prova(schermo, programma, differenze)
            print(f"{nome}: {avvio:.2f} s to the first form, {verdetto:.2f} s to the verdict,"
                  f" told: {righe}", flush=True)
            con_bus = con_bus or (avvio, verdetto)
            if avvio > con_bus[0] + MARGINE or verdetto > con_bus[1] + MARGINE:
                guai.append(f"{nome}: slower than with a bus")
            if righe:
                guai.append(f"{nome}: told {righe}")
    print("\n".join(guai), file=sys.stderr)
    return 1 if guai else 0


if __name__ == "__main__":
    sys.exit(main())
