"""A program that a signal has ended counts as failed, whoever ran it."""

import os
import sys
import tempfile
import time
import unittest

sys.dont_write_bytecode = True
RADICE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../../..")
sys.path.insert(0, os.path.join(RADICE, "tools/prova"))

from schermo import ErroreSchermo, Processo, Schermo  # noqa: E402
from tavoletta import ErroreTavoletta, Tavoletta  # noqa: E402

CADE = ["sh", "-c", "kill -SEGV $$"]
# Takes the wish that it end for a reason to fall.
CADE_ALLA_FINE = ["sh", "-c", "trap 'kill -ABRT $$' TERM; echo pronto; while :; do sleep 0.05; done"]
# Does not go by itself.
RESTA = ["sh", "-c", "trap '' TERM; echo pronto; while :; do sleep 0.05; done"]


def aspetta_la_fine(processo):
    fine = time.monotonic() + 20
    while processo.poll() is None and time.monotonic() < fine:
        time.sleep(0.01)


class Processi(unittest.TestCase):
    """One program."""

    def avvia(self, comando):
        processo = Processo(comando, stdout=-1)
        self.addCleanup(processo.stdout.close)
        return processo

    def pronto(self, comando):
        processo = self.avvia(comando)
        self.assertEqual(processo.stdout.readline(), b"pronto\n")
        return processo

    def test_a_signal_that_nobody_sent_is_a_fall(self):
        processo = self.avvia(CADE)
        aspetta_la_fine(processo)
        self.assertEqual(processo.caduto(), "SIGSEGV")
        processo.termina()
        self.assertEqual(processo.caduto(), "SIGSEGV")

    def test_a_killed_program_has_fallen_too(self):
        processo = self.avvia(["sh", "-c", "kill -KILL $$"])
        aspetta_la_fine(processo)
        self.assertEqual(processo.caduto(), "SIGKILL")

    def test_an_end_that_was_asked_for_is_no_fall(self):
        for comando in (["sleep", "60"], ["sh", "-c", "exit 3"]):
            processo = self.avvia(comando)
            processo.termina()
            self.assertIsNone(processo.caduto())

    def test_neither_is_one_by_force(self):
        processo = self.pronto(RESTA)
        processo.termina(secondi=0.2)
        self.assertIsNone(processo.caduto())
        self.assertIsNotNone(processo.poll())

    def test_a_fall_on_the_way_out_is_one(self):
        processo = self.pronto(CADE_ALLA_FINE)
        processo.termina()
        self.assertEqual(processo.caduto(), "SIGABRT")


class Desktop(unittest.TestCase):
    """A desktop with programs on it."""

    def test_a_program_that_fell_fails_its_desktop(self):
        with self.assertRaisesRegex(ErroreSchermo, "sh was ended by SIGSEGV"):
            with Schermo(640, 480) as schermo:
                aspetta_la_fine(schermo.avvia(*CADE))

    def test_programs_that_are_left_running_fail_nothing(self):
        with Schermo(640, 480) as schermo:
            processo = schermo.avvia("sleep", "60")
        self.assertIsNotNone(processo.poll())

    def test_what_went_wrong_before_is_told_first(self):
        with self.assertRaises(KeyError):
            with Schermo(640, 480) as schermo:
                aspetta_la_fine(schermo.avvia(*CADE))
                raise KeyError


class Superficie(unittest.TestCase):
    """The stand-in for the touch surface."""

    def test_a_stand_in_that_falls_fails_its_game(self):
        with tempfile.TemporaryDirectory() as cartella:
            finta = os.path.join(cartella, "finta")
            with open(finta, "w", encoding="utf-8") as file:
                file.write("#!/bin/sh\necho in ascolto 1050\nread riga\nkill -SEGV $$\n")
            os.chmod(finta, 0o755)
            with self.assertRaisesRegex(ErroreTavoletta, "SIGSEGV"):
                with Tavoletta(finta) as tavoletta:
                    tavoletta.fai("tasto 1")
                    aspetta_la_fine(tavoletta._processo)


if __name__ == "__main__":
    unittest.main()
