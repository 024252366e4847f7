#!/usr/bin/python3
"""Plays exercises as gioca.py does, with the screen reader Orca listening, and holds what it says
against what it should.

    ascoltata.py <program> <folder> <stand-in for the touch surface> [<exercise>[/mouse] ...]

Without an exercise all of them are played, as who hears them does: by keys, on their own or those of
a scanning keyboard, or by touch; the abacus, whose beads no key reaches, with the mouse, too. On
every form the question of each case must be spoken, help, what comes to stand on a board, a carry,
the keys that a light has come to, and each verdict with its count: that within 300 ms of the key or
touch. A mouse has the reader itself look for what was clicked, among all that is on the screen: there
no time is held. Nothing may be cut off by anything but the next of these, nor a question by the box
of the touch link, which it waits behind; and nothing that is spoken is without a name. The folder
gets what was said, a file an exercise, with the hand and the events of the bus between. Ends with 0
when all was heard.
"""

import contextlib
import os
import re
import signal
import subprocess
import sys
import tempfile
import time

from giocatore import AVVIO, ERRATI, ESATTI, Errore, Giocatore
from lettore import ErroreLettore, Lettore
from partite import PARTITE
from schermo import ErroreSchermo, Schermo
from senza_mouse import SoloTasti
from tavoletta import ErroreTavoletta, Tavoletta

GIUSTO, SBAGLIATO = "Giusto", "Sbagliato: prova ancora"
ENTRO = float(os.environ.get("ASCOLTATA_ENTRO", "0.3"))  # seconds; more on a machine that is busy
AL_PIU = 12  # events of the accessibility bus at a verdict
VECCHIO = "Focus:"  # tells a change of the focus again, in older words
ASPETTA = 15  # seconds
TOCCHI_DI_ALT, TOCCO_DI_ALT = 5, 0.1  # taps of Alt, and the seconds that the first is held
RESTA = 2  # the seconds that each has to give the menu bar the keyboard
SILENZIO, PAZIENZA = 0.25, 3  # seconds: the reader's silence that a hand waits for, and how long
BOTTONE_DETTO = " push button."
COL_MOUSE = "/mouse"
SENZA_NOME = re.compile(r"(push button|button|text|label|panel|image|menu|menu item|layered pane)?\.?")


class Gesti(list):
    """The moments at which the pupil's hands did something, seconds."""

    def segna(self, oggetto, nome, prima):
        """Has every call of a method mark its moment, after what comes before it."""
        metodo = getattr(oggetto, nome)

        def segnato(*argomenti):
            prima()
            self.append(time.monotonic())
            return metodo(*argomenti)
        setattr(oggetto, nome, segnato)


class _Ascoltato:
    """Beside one of the players: hears at each step what must be heard."""

    entro = ENTRO

    def __init__(self, *argomenti):
        super().__init__(*argomenti[:-1])
        self._lettore = argomenti[-1]
        self.gesti = Gesti()
        self.misure = []  # (what, milliseconds from the hand to the voice, events)
        self.mancati = []
        self._udito = 0, 0  # how far all has been found: which one of what was said, how much of it
        self._domanda = None
        for oggetto, nome in ((self.mani, "gesto"), (self.tavoletta, "fai")):
            if oggetto is not None:
                self.gesti.segna(oggetto, nome, self._lascia_finire)

    def _lascia_finire(self):
        """Waits until the reader has said where one is, as who hears it does."""
        def finito(detto):
            # The name of a key is said at once, before what the key has brought.
            parlato = any(parole.endswith(".") for quando, _, parole in detto
                          if quando > max(self.gesti, default=0))
            attesa = SILENZIO if parlato else 3 * SILENZIO
            return time.monotonic() > attesa + max((detto[-1][0], *self.gesti[-1:]))
        self._aspetta_detto(finito, PAZIENZA)

    def _aspetta_detto(self, vero, secondi):
        """Waits until that is true of what has been said, or so long."""
        fine = time.monotonic() + secondi
        while time.monotonic() < fine and not vero(self._lettore.detto()):
            time.sleep(0.05)

    def chiesta(self, leggi=None):
        # Who looks at the tree takes the program's time from the reader: first it speaks.
        self._aspetta_detto(lambda detto: any("=" in parole for quando, _, parole in detto
                                              if quando > self.gesti[-1]), PAZIENZA)
        termini = super().chiesta(leggi)
        parole = [t for t in termini if t]
        # Read again in the middle of a case, a sum has been spoken at its beginning.
        if (self.forme[-1], parole) == self._domanda:
            return termini
        self._domanda = self.forme[-1], parole

        def domanda(detto):
            chiesti = re.findall(r"\d+", detto.partition(". Trova")[0])
            # A box is called by what it asks for, which is not yet the question of the case.
            casella = detto.endswith(" text.")
            return len(detto) if "=" in detto and chiesti == parole and not casella else 0
        self._deve_udire("question", domanda)
        return termini

    def collega(self):
        # The question waits behind the box.
        self._deve_dire("box", "HelpiKeys è pronta")
        super().collega()

    def si_dice(self, che_cosa, parole):
        self._deve_dire(che_cosa, parole)

    def contano(self, esatti, errati):
        super().contano(esatti, errati)
        frase = f"{GIUSTO}. {ESATTI} {esatti}"
        if not any(frase in parole for _, _, parole in self._lettore.detto()):
            # After boards and carries, which take seconds of their own.
            self._deve_dire("verdict at the end", frase)

    def rispondi(self, risposta, dai, giusto):
        parola, conto = (GIUSTO, ESATTI) if giusto else (SBAGLIATO, ERRATI)
        verdetto = f"{parola}. {conto} {(self.conta(conto) or 0) + 1}"

        def dai_e_ascolta(data):
            dai(data)
            self._deve_dire("verdict", verdetto)
        super().rispondi(risposta, dai_e_ascolta, giusto)

    def _deve_dire(self, che_cosa, parole):
        def quanto(detto):
            # A button that bears such words says what it would do, not what is.
            if che_cosa == "board" and detto.endswith(BOTTONE_DETTO):
                return 0
            return detto.find(parole) + len(parole) if parole in detto else 0
        self._deve_udire(che_cosa, quanto)

    def _deve_udire(self, che_cosa, quanto):
        """Looks for it in what has been said since the last thing that was found.

        quanto: how much of a text it takes, from the beginning to its end; 0 where it is not there.
        """
        fine = time.monotonic() + ASPETTA
        while True:
            detto = self._lettore.detto()
            for i in range(self._udito[0], len(detto)):
                da = self._udito[1] if i == self._udito[0] else 0
                fino = quanto(detto[i][2][da:]) if detto[i][1] == "say" else 0
                if fino:
                    self._udito = i, da + fino
                    self._misura(che_cosa, detto, i)
                    return
            if time.monotonic() > fine:
                self.mancati.append(f"{che_cosa} of {self.forme[-1]} was not spoken")
                return
            time.sleep(0.05)

    def _misura(self, che_cosa, detto, i):
        quando, _, parole = detto[i]
        gesto = max((g for g in self.gesti if g < quando), default=quando)
        # What comes behind it.
        time.sleep(0.5)
        eventi = [cosa for t, cosa in self._lettore.eventi(self.albero.processo)
                  if gesto <= t <= quando + 0.5 and not cosa.startswith(VECCHIO)]
        print(f"Heard:    {parole!r} after {1000 * (quando - gesto):.0f} ms,"
              f" {len(eventi)} events")
        self.misure.append((che_cosa, quando - gesto, eventi))
        fermata = next((t for t, verbo, _ in self._lettore.detto()[i + 1:] if verbo == "stop"), None)
        if fermata and not any(quando < g <= fermata for g in self.gesti):
            self.mancati.append(f"{parole!r} was cut off by the reader itself")
        if che_cosa != "verdict":
            return
        if quando - gesto > self.entro:
            self.mancati.append(f"{parole!r} came after {quando - gesto:.3f} s")
        if len(eventi) > AL_PIU:
            conti = ", ".join(f"{eventi.count(e)} {e}" for e in sorted(set(eventi)))
            self.mancati.append(f"{parole!r}: {len(eventi)} events: {conti}")


class Ascoltato(_Ascoltato, SoloTasti):
    """Plays by keys or touch."""

    def _entra_nella_barra(self):
        # The toolkit hands each key to the reader first, and on a busy machine a tap of Alt has been seen to
        # give the menu bar the keyboard for a moment only. The keys without a reader are tried elsewhere.
        for tocco in range(TOCCHI_DI_ALT):
            # Held longer each time: what the reader is told of the press, it has then taken before the release.
            self.mani.giu("alt")
            time.sleep(TOCCO_DI_ALT * 2 ** tocco)
            self.mani.su("alt")
            fine = time.monotonic() + RESTA
            while not self._voce_col_fuoco() and time.monotonic() < fine:
                time.sleep(0.05)
            # What it holds for a moment only is let go by then.
            time.sleep(RESTA / 4)
            if qui := self._voce_col_fuoco():
                return qui
            print("Again:    Alt, since the menu bar has let the keyboard go")
        raise Errore(f"the menu bar does not take the keyboard by {TOCCHI_DI_ALT} taps of Alt")


class AscoltatoColMouse(_Ascoltato, Giocatore):
    """Plays with the mouse, with which the reader takes its time."""

    entro = ASPETTA


def riassumi(misure):
    """Each kind of what was heard: how often, and the milliseconds from hand to voice."""
    for che_cosa in dict.fromkeys(c for c, _, _ in misure):
        tempi = sorted(1000 * t for c, t, _ in misure if c == che_cosa)
        eventi = max(len(e) for c, _, e in misure if c == che_cosa)
        print(f"Times:    {che_cosa}: {len(tempi)}, median {tempi[len(tempi) // 2]:.0f} ms, longest"
              f" {tempi[-1]:.0f} ms, at most {eventi} events")


def senza_nome(lettore):
    """What was said of something that has no name."""
    detto = [parole for _, verbo, parole in lettore.detto() if verbo == "say"]
    return [f"{dopo!r} after {prima!r} is without a name" for prima, dopo in zip(detto, detto[1:])
            if SENZA_NOME.fullmatch(dopo)]


def scrivi(percorso, lettore, gesti, processo):
    """What was said, from the first word on, what the hands did and what the program told."""
    detto = lettore.detto()
    righe = [(quando, "" if verbo == "say" else "--", parole) for quando, verbo, parole in detto]
    righe += [(quando, "hand", "") for quando in gesti]
    righe += [(quando, "event", cosa) for quando, cosa in lettore.eventi(processo)]
    with open(percorso, "w", encoding="utf-8") as foglio:
        for quando, verbo, parole in sorted(righe):
            foglio.write(f"{quando - detto[0][0]:9.3f}  {verbo:5}  {parole}".rstrip() + "\n")


def ascolta(programma, cartella, tavoletta, nome):
    """One exercise, from the start of the program to its end. Returns what was not as it should."""
    partita = PARTITE[nome.removesuffix(COL_MOUSE)]
    col_mouse = nome.endswith(COL_MOUSE)
    superficie = Tavoletta(tavoletta) if partita.a_tocchi else contextlib.nullcontext()
    with tempfile.TemporaryDirectory() as sua, Schermo() as schermo, superficie as tocchi:
        from albero import Albero, TempoScaduto
        lettore = Lettore(schermo, sua)
        processo = schermo.avvia(schermo.copia(programma))
        chi = AscoltatoColMouse if col_mouse else Ascoltato
        giocatore = chi(schermo, Albero(processo), cartella, tocchi, lettore)
        try:
            giocatore.vai(AVVIO)
            (partita.caso if partita.col_mouse and not col_mouse else partita.gioca)(giocatore)
            giocatore.chiudi(processo)
        except (TempoScaduto, Errore, ErroreTavoletta) as errore:
            giocatore.mancati.append(f"on {giocatore.forme[-1:] or AVVIO}: {errore}")
            giocatore.fotografa("errore")
        riassumi(giocatore.misure)
        giocatore.mancati += senza_nome(lettore)
        scrivi(os.path.join(cartella, nome.replace("/", "_") + ".txt"), lettore, giocatore.gesti,
               processo)
    return giocatore.mancati


def main():
    prove = [*PARTITE, "abaco" + COL_MOUSE]
    if len(sys.argv) < 4 or not {n.removesuffix(COL_MOUSE) for n in sys.argv[4:]} <= {*PARTITE}:
        print(__doc__, file=sys.stderr)
        print("Exercises: " + ", ".join(PARTITE), file=sys.stderr)
        return 2
    programma, cartella, tavoletta = sys.argv[1:4]
    os.makedirs(cartella, exist_ok=True)
    sys.stdout.reconfigure(line_buffering=True)
    # Ended from outside, it still leaves through the end of the Schermo.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    nomi = sys.argv[4:] or prove
    if len(nomi) > 1:
        # Each by itself: one that breaks takes no other with it.
        comando = [sys.executable, *sys.argv[:4]]
        return max(subprocess.run([*comando, nome], check=False).returncode for nome in nomi)
    nome = nomi[0]
    print(f"Exercise: {nome}")
    try:
        guai = ascolta(programma, cartella, tavoletta, nome)
    except (ErroreSchermo, ErroreTavoletta, ErroreLettore) as errore:
        guai = [str(errore)]
    for guaio in guai:
        print(f"Failed: {nome}: {guaio}", file=sys.stderr)
    return 1 if guai else 0


if __name__ == "__main__":
    sys.exit(main())
