"""The line by which a measurement tells a figure, as figura.h has it, and how often it measures."""

import os
from typing import NamedTuple

# In the environment of the measurements while the short form is wanted.
BREVE = "MISURA_BREVE"


class Figura(NamedTuple):
    """One thing measured.

    nome: what. di: on what (a form, a movie), empty where there is one only. come: "at most", or
    "under", where the limit itself falls short.
    """

    nome: str
    di: str
    valore: float
    unita: str
    come: str
    limite: float

    def mantenuta(self):
        """Whether it is within its limit; what is no number is not."""
        if self.come == "under":
            return self.valore < self.limite
        return self.valore <= self.limite

    def detta(self):
        """The figure for a person, in one line."""
        nome = f"{self.nome}, {self.di}" if self.di else self.nome
        return (f"{nome}: {cifre(self.valore)} {self.unita} ({self.come} {self.limite:.4g})"
                f"{'' if self.mantenuta() else ' SHORT'}")


def cifre(valore):
    """A value with the digits that are worth reading."""
    return f"{valore:.0f}" if abs(valore) >= 1000 else f"{valore:.3g}" if abs(valore) >= 100 \
        else f"{valore:.2f}" if abs(valore) >= 10 else f"{valore:.3f}"


def leggi(riga):
    """The figure of a line; None where the line is no figure's."""
    campi = riga.rstrip("\n").split("\t")
    if len(campi) != 7 or campi[0] != "figure" or campi[5] not in ("at most", "under"):
        return None
    try:
        return Figura(campi[1], campi[2], float(campi[3]), campi[4], campi[5], float(campi[6]))
    except ValueError:
        return None


def stampa(figura):
    """Prints the line of a figure."""
    print("figure", figura.nome, figura.di, f"{figura.valore:.9g}", figura.unita, figura.come,
          f"{figura.limite:.9g}", sep="\t", flush=True)


def quanti(intera, breve):
    """How often a thing is done, or for how many seconds: `intera`, or `breve` in the short form."""
    return breve if BREVE in os.environ else intera
