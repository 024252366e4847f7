"""A print server of our own with one queue, whose printer is a file; and how large what was printed is."""

import os
import re
import shutil
import socket
import subprocess
import tempfile
import time

from schermo import ErroreSchermo

SERVER = """Listen 127.0.0.1:{porta}
Browsing Off
DefaultAuthType None
LogLevel warn
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
"""
FILE = """ServerRoot {qui}/etc
RequestRoot {qui}/spool
TempDir {qui}/spool/tmp
CacheDir {qui}/cache
StateDir {qui}/state
AccessLog {qui}/log/access
ErrorLog {qui}/log/error
PageLog {qui}/log/page
SystemGroup root
FileDevice Yes
Sandboxing relaxed
"""
CODA = "Laboratorio"
POLLICE, PUNTI = 25.4, 72


class CodaDiStampa:
    """The server, and the queue that everything started meanwhile prints to by default."""

    PAZIENZA = 60

    def __enter__(self):
        self._qui = tempfile.mkdtemp(prefix="coda-")
        os.chmod(self._qui, 0o755)
        self._stampato = os.path.join(self._qui, "stampato")
        for nome in ("etc/ppd", "spool/tmp", "cache", "state/certs", "log"):
            os.makedirs(os.path.join(self._qui, nome))
        with socket.socket() as libera:
            libera.bind(("127.0.0.1", 0))
            porta = libera.getsockname()[1]
        for nome, testo in (("cupsd.conf", SERVER), ("cups-files.conf", FILE)):
            with open(os.path.join(self._qui, "etc", nome), "w", encoding="ascii") as file:
                file.write(testo.format(porta=porta, qui=self._qui))
        self._server = subprocess.Popen(["/usr/sbin/cupsd", "-f", "-c", f"{self._qui}/etc/cupsd.conf",
                                         "-s", f"{self._qui}/etc/cups-files.conf"])
        os.environ["CUPS_SERVER"] = f"127.0.0.1:{porta}"
        self._aspetta("the print server", lambda: subprocess.run(
            ["lpstat", "-r"], capture_output=True, text=True, check=False).stdout.startswith("scheduler is running"))
        subprocess.run(["lpadmin", "-p", CODA, "-E", "-v", "file:" + self._stampato,
                        "-m", "drv:///sample.drv/generic.ppd", "-o", "PageSize=A4"],
                       check=True, capture_output=True, timeout=self.PAZIENZA)
        subprocess.run(["lpadmin", "-d", CODA], check=True, timeout=self.PAZIENZA)
        return self

    def __exit__(self, *errore):
        os.environ.pop("CUPS_SERVER", None)
        self._server.terminate()
        self._server.wait(20)
        shutil.rmtree(self._qui, ignore_errors=True)

    def prendi(self, dove):
        """Waits for what a job brings, whole, and puts it into a file of this name; gives the name."""
        def intero():
            try:
                prima = os.path.getsize(self._stampato)
                time.sleep(2)
                return prima > 0 and os.path.getsize(self._stampato) == prima
            except OSError:
                return False
        self._aspetta("something printed", intero)
        shutil.move(self._stampato, dove)
        return dove

    def _aspetta(self, che_cosa, vero):
        fine = time.monotonic() + self.PAZIENZA
        while not vero():
            if time.monotonic() > fine:
                raise ErroreSchermo(f"{che_cosa} does not come")
            time.sleep(0.2)


def inchiostro(file):
    """How far the ink of the first page of a PDF or PostScript file reaches: two lengths in millimetres, the
    shorter one first, whichever way the sheet lies."""
    detto = subprocess.run(["gs", "-q", "-dBATCH", "-dNOPAUSE", "-dLastPage=1", "-sDEVICE=bbox", file],
                           capture_output=True, text=True, check=True, timeout=120).stderr
    numeri = re.search(r"%%HiResBoundingBox: ([\d.]+) ([\d.]+) ([\d.]+) ([\d.]+)", detto)
    sinistra, basso, destra, alto = (float(n) * POLLICE / PUNTI for n in numeri.groups())
    return sorted((destra - sinistra, alto - basso))
