"""tools/costruisci where something goes wrong: each in a folder of its own, whose name has blanks and accents, with
a stand-in for cmake."""

import contextlib
import os
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

_QUI = os.path.dirname(os.path.abspath(__file__))
_STRUMENTO = os.path.join(_QUI, "../../../tools/costruisci")

# Notes each call, and does what the file "come" says beside it.
_CMAKE = """#!/bin/sh
echo "$*" >>chiamate
case $1 in
  --preset) mkdir -p "build/$2"; : >"build/$2/build.ninja"; : >"build/$2/CMakeCache.txt" ;;
  --build) cp come come.$$; echo "[1/4] begun"; . ./come.$$; echo "[4/4] done"; : >"build/$3/fatta" ;;
esac
"""


class Costruisci(unittest.TestCase):

    def setUp(self):
        sopra = tempfile.TemporaryDirectory()
        self.addCleanup(sopra.cleanup)
        self.cartella = os.path.join(sopra.name, "più spazî")
        os.makedirs(os.path.join(self.cartella, "tools"))
        shutil.copy(_STRUMENTO, os.path.join(self.cartella, "tools"))
        self.comando("cmake", _CMAKE)
        self.come("")

    def file(self, nome):
        return os.path.join(self.cartella, nome)

    def scrivi(self, nome, testo):
        os.makedirs(os.path.dirname(self.file(nome)), exist_ok=True)
        with open(self.file(nome), "w", encoding="utf-8") as file:
            file.write(testo)

    def comando(self, nome, testo):
        """A stand-in for a command of the system."""
        self.scrivi(f"comandi/{nome}", testo)
        os.chmod(self.file(f"comandi/{nome}"), 0o755)

    def come(self, testo):
        """What the build does beside."""
        self.scrivi("come", testo)

    def chiamate(self):
        with open(self.file("chiamate"), encoding="utf-8") as file:
            return file.read().splitlines()

    def comincia(self, *parole):
        percorso = self.file("comandi") + os.pathsep + os.environ["PATH"]
        return subprocess.Popen([self.file("tools/costruisci"), "dev", *parole], text=True,
                                env={**os.environ, "PATH": percorso}, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, start_new_session=True)

    def fai(self, *parole):
        processo = self.comincia(*parole)
        detto, _ = processo.communicate(timeout=30)
        return processo.returncode, detto

    def test_it_is_configured_once(self):
        self.assertEqual(self.fai()[0], 0)
        self.assertEqual(self.fai("cartella")[0], 0)
        self.assertEqual(self.chiamate(), ["--preset dev", "--build --preset dev",
                                           "--build --preset dev --target cartella"])

    def test_an_option_that_is_not_set_is_configured(self):
        self.fai()
        self.fai("-DSOMME_BENCH=ON", "bench_avvio")
        self.assertIn("--preset dev -DSOMME_BENCH=ON", self.chiamate())

    def test_it_says_how_far_it_is(self):
        self.come("sleep 4")
        self.assertIn("  1 of 4\n", self.fai()[1])

    def test_what_goes_wrong_is_shown_and_the_next_call_goes_on(self):
        self.come("echo 'error: no such thing'; exit 1")
        esito, detto = self.fai()
        self.assertEqual(esito, 1)
        self.assertIn("error: no such thing", detto)
        self.assertNotIn("disk", detto)
        self.come("")
        self.assertEqual(self.fai()[0], 0)

    def test_a_full_disk_is_told(self):
        self.comando("df", "#!/bin/sh\necho head\necho '/dev/x 100 90 10 99% /'\n")
        self.come("exit 1")
        esito, detto = self.fai()
        self.assertEqual(esito, 1)
        self.assertIn("The disk is full. Free about 3 GB and call this again", detto)

    def test_an_interrupted_build_goes_on(self):
        self.come("sleep 30")
        processo = self.comincia()
        self.attendi("build/dev.log", "begun")
        os.killpg(processo.pid, signal.SIGINT)
        processo.communicate(timeout=10)
        self.assertNotEqual(processo.returncode, 0)
        self.come("")
        self.assertEqual(self.fai()[0], 0)
        self.assertTrue(os.path.exists(self.file("build/dev/fatta")))
        self.assertEqual(self.chiamate().count("--preset dev"), 1)

    def test_a_second_build_waits_for_the_first(self):
        self.come("sleep 2; : >prima")
        primo = self.comincia()
        self.attendi("build/dev.log", "begun")
        self.come("test -e prima || exit 1")
        esito, detto = self.fai()
        primo.communicate(timeout=10)
        self.assertEqual((esito, primo.returncode), (0, 0))
        self.assertIn("Another build of build/dev is at work; waiting for it", detto)

    def test_what_a_clock_that_was_set_back_left_is_made_anew(self):
        self.fai()
        domani = time.time() + 86400
        self.scrivi("platform/a.cpp", "")
        for nome in ("platform/a.cpp", "build/dev/fatta"):
            os.utime(self.file(nome), (domani, domani))
        _, detto = self.fai()
        self.assertIn("The clock was set back", detto)
        self.assertLessEqual(os.path.getmtime(self.file("platform/a.cpp")), time.time())
        self.assertNotIn("The clock was set back", self.fai()[1])

    def attendi(self, nome, parola):
        """Until the file says the word."""
        fine = time.monotonic() + 20
        while time.monotonic() < fine:
            with contextlib.suppress(FileNotFoundError), open(self.file(nome), encoding="utf-8") as file:
                if parola in file.read():
                    return
            time.sleep(0.05)
        self.fail(f"{nome} does not say {parola}")


if __name__ == "__main__":
    unittest.main()
