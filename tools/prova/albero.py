"""What a program shows, read from outside through the accessibility tree, as a screen reader does."""

import os
import time

import dbus
from bus_ausili import Bus

COSA = "org.a11y.atspi."
RADICE = "/org/a11y/atspi/accessible/root"
BUS = "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus"
# The states that are asked for, as AT-SPI numbers them.
SCRIVIBILE, ABILITATO, FUOCO, SENSIBILE, MOSTRATO, DA_LEGGERE = 7, 8, 12, 24, 25, 43
NESSUNO = 0, 0  # none of them: they come in two numbers of 32 bits
DELLO_SCHERMO = dbus.UInt32(0)  # where places are counted from
# Seconds for which what a look at the whole tree has told need not be asked again.
FRESCO = 0.03
# Seconds from one question to the next while something is waited for: at first, and at most.
FRA_DUE_DOMANDE, FRA_DUE_AL_PIU = 0.1, 0.4
# Seconds to wait for an answer.
PAZIENZA = 20 * float(os.environ.get("LENTEZZA", 1))


class TempoScaduto(Exception):
    """What was waited for did not come; the text holds what was on the screen instead."""


class Oggetto:
    """One object of the tree. Every question goes to the program anew, but in the moment after a look.

    A control that has gone meanwhile answers with nothing: an empty name, no place, no state.
    """

    def __init__(self, bus, chi, percorso):
        """chi, percorso: its program's name on the bus, its own in the program."""
        self._bus, self._chi, self._percorso = bus, chi, percorso
        self._detto, self._quando = {}, 0

    def domanda(self, interfaccia, membro, *argomenti):
        """A question to it, to be asked of the bus."""
        return self._chi, self._percorso, COSA + interfaccia, membro, *argomenti

    def proprieta(self, interfaccia, nome):
        """The same for one of its properties."""
        return (self._chi, self._percorso, "org.freedesktop.DBus.Properties", "Get", COSA + interfaccia,
                nome)

    @property
    def del_nome(self):
        return self.proprieta("Accessible", "Name")

    @property
    def del_ruolo(self):
        return self.domanda("Accessible", "GetRoleName")

    def ha_detto(self, **risposte):
        """Keeps answers for a moment, by the names of the attributes that are they."""
        self._detto, self._quando = risposte, time.monotonic()

    def _chiedi(self, domanda, altrimenti):
        risposta = self._bus.chiedi([domanda])[0]
        return altrimenti if risposta is None else risposta

    def _ora(self, che_cosa, domanda, altrimenti):
        if che_cosa in self._detto and time.monotonic() - self._quando <= FRESCO:
            return self._detto[che_cosa]
        return self._chiedi(domanda, altrimenti)

    @property
    def nome(self):
        return str(self._ora("nome", self.del_nome, ""))

    @property
    def descrizione(self):
        return str(self._chiedi(self.proprieta("Accessible", "Description"), ""))

    @property
    def testo(self):
        """What a text control holds; empty for others."""
        return str(self._chiedi(self.domanda("Text", "GetText", 0, -1), ""))

    @property
    def ruolo(self):
        """As the library writes it: "push button", "label", "menu item"."""
        return str(self._ora("ruolo", self.del_ruolo, ""))

    @property
    def posto(self):
        """(x, y, width, height) on the screen."""
        return tuple(map(int, self._chiedi(self.domanda("Component", "GetExtents", DELLO_SCHERMO),
                                           (0, 0, 0, 0))))

    def ha(self, *stati):
        """Whether it has all these states."""
        return _ha(self._ora("stati", self.domanda("Accessible", "GetState"), NESSUNO), *stati)

    @property
    def visibile(self):
        return self.ha(MOSTRATO)

    @property
    def abilitato(self):
        return self.ha(ABILITATO, SENSIBILE)

    @property
    def scrivibile(self):
        """Whether it is a text control that takes a text."""
        return self.ha(SCRIVIBILE, ABILITATO, SENSIBILE) and not self.ha(DA_LEGGERE)

    @property
    def ha_il_fuoco(self):
        return self.ha(FUOCO)

    def azioni(self):
        """The names of what assistive technology can have it do."""
        quante = self._chiedi(self.proprieta("Action", "NActions"), 0)
        nomi = self._bus.chiedi([self.domanda("Action", "GetName", i) for i in range(quante)])
        return [str(nome or "") for nome in nomi]

    @property
    def scorciatoia(self):
        """The keys that work it from afar, as "Alt+E"; empty without."""
        return str(self._chiedi(self.domanda("Action", "GetKeyBinding", 0), ""))

    def fai(self, azione):
        """Has it do one of its actions, without mouse and keyboard. Returns whether it took it."""
        nomi = self.azioni()
        if azione not in nomi:
            return False
        return bool(self._chiedi(self.domanda("Action", "DoAction", nomi.index(azione)), False))

    def scrivi(self, testo):
        """Puts a text in the place of what a text control holds."""
        return bool(self._chiedi(self.domanda("EditableText", "SetTextContents", testo), False))

    def __str__(self):
        stati = [parola for parola, vero in (("off", not self.abilitato),
                                             ("focus", self.ha_il_fuoco)) if vero]
        nota = f" ({', '.join(stati)})" if stati else ""
        return f"{self.ruolo} {self.nome!r}{nota}"


def _ha(detti, *stati):
    return all(detti[stato // 32] >> stato % 32 & 1 for stato in stati)


def _in_fila(oggetto, figli):
    """An object and everything below it, from the top."""
    yield oggetto
    for figlio in figli[oggetto]:
        yield from _in_fila(figlio, figli)


class Albero:
    """The tree of one running program."""

    def __init__(self, processo):
        """processo: what Schermo.avvia gave back."""
        self.processo = processo
        self._bus = None
        self._chi = None

    def visibili(self):
        """What is on the screen, from the top of the tree."""
        radice = self._radice()
        return self._guarda(radice) if radice else []

    def _radice(self):
        """The object that holds all others, None while the program has not joined the bus."""
        if self._bus is None:
            self._bus = Bus()
        if self._chi is None:
            desktop = Oggetto(self._bus, COSA + "Registry", RADICE)
            programmi = self._bus.chiedi([desktop.domanda("Accessible", "GetChildren")])[0] or ()
            numeri = self._bus.chiedi([(*BUS, "GetConnectionUnixProcessID", chi) for chi, _ in programmi])
            self._chi = next((chi for (chi, _), numero in zip(programmi, numeri)
                              if numero == self.processo.pid), None)
        return self._chi and Oggetto(self._bus, self._chi, RADICE)

    def _guarda(self, radice):
        """All that shows, from an object down; each has told its role, its name and its states."""
        figli, stati = {}, {}
        livello = [radice]
        while livello:
            risposte = self._bus.chiedi([o.domanda("Accessible", domanda) for o in livello
                                         for domanda in ("GetChildren", "GetState")])
            for oggetto, sotto, suoi in zip(livello, risposte[::2], risposte[1::2]):
                stati[oggetto] = suoi or NESSUNO
                # Below what does not show nothing does; the program itself says nothing of that.
                dentro = oggetto is radice or _ha(stati[oggetto], MOSTRATO)
                figli[oggetto] = [Oggetto(self._bus, *figlio) for figlio in dentro and sotto or ()]
            livello = [figlio for oggetto in livello for figlio in figli[oggetto]]
        mostrati = [o for o in _in_fila(radice, figli) if _ha(stati[o], MOSTRATO)]
        risposte = self._bus.chiedi([domanda for o in mostrati for domanda in (o.del_ruolo, o.del_nome)])
        for oggetto, ruolo, nome in zip(mostrati, risposte[::2], risposte[1::2]):
            oggetto.ha_detto(ruolo=ruolo or "", nome=nome or "", stati=stati[oggetto])
        return mostrati

    def cerca(self, ruolo, nome):
        """The first object on the screen with that role and that name.

        A level may be called without the group that it says first.
        """
        for oggetto in self.visibili():
            if oggetto.ruolo != ruolo:
                continue
            if oggetto.nome == nome or oggetto.nome.endswith(f", {nome}"):
                return oggetto
        return None

    def aspetta(self, che_cosa, domanda, secondi=PAZIENZA):
        """Asks again and again until the answer is true, and returns it.

        che_cosa: in words, for the complaint when the time is over or the program has ended.
        """
        fine = time.monotonic() + secondi
        pausa = FRA_DUE_DOMANDE
        while True:
            risposta = domanda()
            if risposta:
                return risposta
            stato = self.processo.poll()
            if stato is not None:
                raise TempoScaduto(f"waiting for {che_cosa}: the program has ended ({stato})")
            if time.monotonic() > fine:
                raise TempoScaduto(f"waiting for {che_cosa}; on the screen:\n{self.racconta()}")
            # What takes long is asked for less often: a look costs the program as much as who looks.
            time.sleep(pausa)
            pausa = min(pausa * 1.3, FRA_DUE_AL_PIU)

    def aspetta_oggetto(self, ruolo, nome, secondi=PAZIENZA):
        return self.aspetta(f"{ruolo} {nome!r}", lambda: self.cerca(ruolo, nome), secondi)

    def racconta(self):
        return "\n".join(f"  {o}" for o in self.visibili()) or "  (nothing)"
