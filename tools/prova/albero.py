"""What a program shows, read from outside through the accessibility tree, as a screen reader does.

Import it after the Schermo has been entered: the tree belongs to the desktop of the environment.
"""

import os
import time

import gi
import pyatspi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# Without an event loop of our own the library would go on answering with what it heard first.
NIENTE = Atspi.Cache.NONE
# Seconds to wait for an answer.
PAZIENZA = 20 * float(os.environ.get("LENTEZZA", 1))


class TempoScaduto(Exception):
    """What was waited for did not come; the text holds what was on the screen instead."""


class Oggetto:
    """One object of the tree. Every question goes to the program anew.

    A control that has gone meanwhile answers with nothing: an empty name, no place, no state.
    """

    def __init__(self, accessibile):
        self._accessibile = accessibile

    def _chiedi(self, domanda, altrimenti):
        try:
            return domanda(self._accessibile)
        except (GLib.Error, LookupError, NotImplementedError, AttributeError):
            return altrimenti

    @property
    def nome(self):
        return self._chiedi(lambda a: a.name or "", "")

    @property
    def descrizione(self):
        return self._chiedi(lambda a: a.description or "", "")

    @property
    def testo(self):
        """What a text control holds; empty for others."""
        return self._chiedi(lambda a: a.queryText().getText(0, -1), "")

    @property
    def ruolo(self):
        """As the library writes it: "push button", "label", "menu item"."""
        return self._chiedi(lambda a: a.getRoleName(), "")

    @property
    def posto(self):
        """(x, y, width, height) on the screen."""
        def misura(accessibile):
            e = accessibile.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            return e.x, e.y, e.width, e.height
        return self._chiedi(misura, (0, 0, 0, 0))

    def ha(self, stato):
        """stato: a state of the library, such as pyatspi.STATE_FOCUSED."""
        return self._chiedi(lambda a: a.getState().contains(stato), False)

    @property
    def visibile(self):
        return self.ha(pyatspi.STATE_SHOWING)

    @property
    def abilitato(self):
        return self.ha(pyatspi.STATE_ENABLED) and self.ha(pyatspi.STATE_SENSITIVE)

    @property
    def scrivibile(self):
        """Whether it is a text control that takes a text."""
        return (self.ha(pyatspi.STATE_EDITABLE) and not self.ha(pyatspi.STATE_READ_ONLY)
                and self.abilitato)

    @property
    def ha_il_fuoco(self):
        return self.ha(pyatspi.STATE_FOCUSED)

    def azioni(self):
        """The names of what assistive technology can have it do."""
        def nomi(accessibile):
            azioni = accessibile.queryAction()
            return [azioni.getName(i) for i in range(azioni.nActions)]
        return self._chiedi(nomi, [])

    @property
    def scorciatoia(self):
        """The keys that work it from afar, as "Alt+E"; empty without."""
        return self._chiedi(lambda a: a.queryAction().getKeyBinding(0), "")

    def fai(self, azione):
        """Has it do one of its actions, without mouse and keyboard. Returns whether it took it."""
        nomi = self.azioni()
        if azione not in nomi:
            return False
        return self._chiedi(lambda a: a.queryAction().doAction(nomi.index(azione)), False)

    def scrivi(self, testo):
        """Puts a text in the place of what a text control holds."""
        return self._chiedi(lambda a: a.queryEditableText().setTextContents(testo), False)

    def figli(self):
        numero = self._chiedi(lambda a: a.childCount, 0)
        for i in range(numero):
            figlio = self._chiedi(lambda a, i=i: a.getChildAtIndex(i), None)
            if figlio is not None:
                yield Oggetto(figlio)

    def tutti(self):
        """The object and everything below it, from the top."""
        yield self
        for figlio in self.figli():
            yield from figlio.tutti()

    def __str__(self):
        stati = [parola for parola, vero in (("off", not self.abilitato),
                                             ("focus", self.ha_il_fuoco)) if vero]
        nota = f" ({', '.join(stati)})" if stati else ""
        return f"{self.ruolo} {self.nome!r}{nota}"


class Albero:
    """The tree of one running program."""

    def __init__(self, processo):
        """processo: what Schermo.avvia gave back."""
        self.processo = processo

    def radice(self):
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.set_cache_mask(NIENTE)
        for figlio in Oggetto(desktop).figli():
            accessibile = figlio._accessibile
            if figlio._chiedi(lambda a: a.get_process_id(), 0) == self.processo.pid:
                accessibile.set_cache_mask(NIENTE)
                return figlio
        return None

    def visibili(self):
        """What is on the screen, from the top of the tree."""
        radice = self.radice()
        return [o for o in radice.tutti() if o.visibile] if radice else []

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
        while True:
            risposta = domanda()
            if risposta:
                return risposta
            stato = self.processo.poll()
            if stato is not None:
                raise TempoScaduto(f"waiting for {che_cosa}: the program has ended ({stato})")
            if time.monotonic() > fine:
                raise TempoScaduto(f"waiting for {che_cosa}; on the screen:\n{self.racconta()}")
            time.sleep(0.05)

    def aspetta_oggetto(self, ruolo, nome, secondi=PAZIENZA):
        return self.aspetta(f"{ruolo} {nome!r}", lambda: self.cerca(ruolo, nome), secondi)

    def racconta(self):
        return "\n".join(f"  {o}" for o in self.visibili()) or "  (nothing)"
