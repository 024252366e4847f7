"""Trees of files in which the package is installed: a fresh Debian, or a plain folder."""

import os
import shutil
import signal
import subprocess
import sys

from giocatore import Errore

# Somebody without any right of their own.
NESSUNO = 65534
# Seconds after which an archive that does not answer counts as none.
PAZIENZA = 900 * float(os.environ.get("LENTEZZA", 1))
PAZIENZA_ARCHIVIO = 60
NON_QUI = 77  # the exit status of what this machine cannot do


class SenzaDebian(Exception):
    """No fresh Debian can be made on this machine; the text says why. Nothing is said of the package."""


def esegui(*comando, pazienza=None, errore=Errore, **opzioni):
    """Runs a command; what it says is shown only when it fails. It goes with all that it started."""
    with subprocess.Popen(comando, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, errors="replace",
                          start_new_session=True, **opzioni) as processo:
        try:
            detto, _ = processo.communicate(timeout=pazienza)
        except BaseException as perche:
            termina(processo)
            if isinstance(perche, subprocess.TimeoutExpired):
                raise errore(f"{' '.join(comando)} took longer than {pazienza} seconds") from None
            raise
    if processo.returncode != 0:
        raise errore(f"{' '.join(comando)} failed:\n{detto}")
    return detto


def esito(lavoro):
    """Does what is done with a fresh Debian, which ends with all that it started also where it is ended from
    outside. Gives the exit status: 0, 1, or NON_QUI where no fresh Debian can be made."""
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        lavoro()
    except SenzaDebian as perche:
        print(f"There is no fresh Debian to be had here: {perche}", file=sys.stderr)
        return NON_QUI
    except Errore as errore:
        print(f"Failed: {errore}", file=sys.stderr)
        return 1
    return 0


def termina(processo, secondi=30):
    """Ends a process of a session of its own, and all of that."""
    try:
        os.killpg(processo.pid, signal.SIGTERM)
        processo.communicate(timeout=secondi)
    except subprocess.TimeoutExpired:
        os.killpg(processo.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


class Albero:
    """A tree of files in which the package is installed."""

    # What the right to enter the tree takes beside those of NESSUNO, as setpriv calls it.
    diritti = ()

    def con_cio_che_serve(self, *comando):
        """A command that uses the tree, with what the tree needs as long as it runs."""
        return comando

    def __init__(self, radice):
        self.radice = radice
        self.casa = "/home/alunno"

    def dentro(self, *parti):
        """The path of a file of the tree, as this process reaches it."""
        return os.path.join(self.radice, *(p.lstrip("/") for p in parti))

    def prepara_casa(self):
        """A home for the one who uses the program; what opens documents there only notes their names."""
        os.makedirs(self.dentro("/tmp"), exist_ok=True)
        os.chmod(self.dentro("/tmp"), 0o1777)
        bin_ = self.dentro(self.casa, "bin")
        os.makedirs(bin_)
        apri = os.path.join(bin_, "xdg-open")
        with open(apri, "w", encoding="ascii") as file:
            file.write('#!/bin/sh\necho "$1" >> "$HOME/aperti"\n'
                       'env | grep -E "^(LD_|QT_QPA|QT_PLUGIN|FONTCONFIG)" >> "$HOME/imposto"\n')
        os.chmod(apri, 0o755)
        if os.geteuid() == 0:
            for cartella, _, file in os.walk(self.dentro(self.casa)):
                for nome in (".", *file):
                    os.chown(os.path.join(cartella, nome), NESSUNO, NESSUNO)


class Debian(Albero):
    """A fresh Debian of its own, with what the package depends on and nothing else."""

    diritti = ("--inh-caps=+sys_chroot", "--ambient-caps=+sys_chroot")

    def __init__(self, radice, architettura=None):
        """architettura: one of Debian's, where it is not this machine's own; its programs run here."""
        super().__init__(radice)
        self._architettura = architettura

    def crea(self):
        """The tree, with its package lists. Raises SenzaDebian where machine or archive give none. Where
        DEBIAN_PRONTA names one that debian.py has made it is a copy of that."""
        if "DEBIAN_PRONTA" in os.environ and not self._architettura:
            esegui("cp", "-a", "--reflink=auto", os.path.join(os.environ["DEBIAN_PRONTA"], "."), self.radice)
            return
        if os.geteuid() != 0 or shutil.which("debootstrap") is None:
            raise SenzaDebian("that takes root and debootstrap")
        try:
            self._debootstrap(*self._archivio())
            # Whoever made the folder may have made it for himself.
            os.chmod(self.radice, 0o755)
            self.apt("update", "-o", "APT::Update::Error-Mode=any", errore=SenzaDebian)
        except BaseException:
            self._smonta()
            raise

    def installa(self, pacchetto):
        """Raises SenzaDebian where the machine or its archive give none."""
        self.crea()
        shutil.copy(pacchetto, self.dentro("/tmp/somme.deb"))
        self.scarica("/tmp/somme.deb")
        self.apt("install", "-y", "/tmp/somme.deb")
        self._raggiungi_il_desktop()

    def scarica(self, *pacchetti):
        """The files of packages and of all that they need. What they ask for must be there; whether the
        archive hands it over is another matter."""
        self.apt("install", "-s", *pacchetti)
        self.apt("install", "-y", "--download-only", *pacchetti, errore=SenzaDebian)

    def _raggiungi_il_desktop(self):
        """Sockets of the desktop outside have the same path in the tree."""
        os.makedirs(self.dentro(os.path.dirname(self.radice)), exist_ok=True)
        os.symlink("/", self.dentro(self.radice))

    def apt(self, *comando, errore=Errore):
        esegui("chroot", self.radice, "apt-get", "--no-install-recommends", *comando,
               pazienza=PAZIENZA, errore=errore,
               env={**os.environ, "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8"})

    def _archivio(self):
        """The release and the archive that this machine has its own packages from, if it answers."""
        fonti = esegui("apt-get", "indextargets", "--format", "$(SITE) $(CODENAME)",
                       "Created-By: Packages", "Origin: Debian", "Component: main",
                       errore=SenzaDebian)
        with open("/etc/os-release", encoding="utf-8") as file:
            nome = dict(r.strip().split("=", 1) for r in file if "=" in r).get("VERSION_CODENAME")
        sito = next((s for s, n in (r.split() for r in fonti.splitlines()) if n == nome), None)
        if sito is None:
            raise SenzaDebian(f"no archive of Debian {nome} is known here")
        esegui("/usr/lib/apt/apt-helper", "-o", "Acquire::Retries=1", "download-file",
               f"{sito.rstrip('/')}/dists/{nome}/InRelease", self.dentro("InRelease"),
               pazienza=PAZIENZA_ARCHIVIO, errore=SenzaDebian)
        os.unlink(self.dentro("InRelease"))
        return nome, sito

    def _debootstrap(self, nome, sito):
        altra = (f"--arch={self._architettura}",) if self._architettura else ()
        esegui("debootstrap", "--variant=minbase", *altra, nome, self.radice, sito,
               pazienza=PAZIENZA, errore=SenzaDebian)
        # What a trial installs need not outlive a loss of power.
        with open(self.dentro("/etc/dpkg/dpkg.cfg.d/senza-attese"), "w", encoding="ascii") as file:
            file.write("force-unsafe-io\n")
        for cosa in ("sources.list", "sources.list.d", "apt.conf.d", "trusted.gpg.d"):
            da, a = os.path.join("/etc/apt", cosa), self.dentro("/etc/apt", cosa)
            if os.path.isfile(da):
                shutil.copy(da, a)
            elif os.path.isdir(da) and cosa == "trusted.gpg.d":
                shutil.copytree(da, a, dirs_exist_ok=True)

    def _smonta(self):
        """What debootstrap has mounted, where it did not come to its end."""
        for cosa in ("proc", "sys"):
            if os.path.ismount(self.dentro(cosa)):
                esegui("umount", "--lazy", self.dentro(cosa))

    def comando(self):
        return ["chroot", self.radice, "/usr/bin/somme"]

    def programma(self):
        return "/usr/lib/somme"

    def togli(self):
        esegui("chroot", self.radice, "apt-get", "purge", "-y", "somme")
        resti = [r for r in ("/usr/lib/somme", "/usr/bin/somme", "/usr/share/doc/somme")
                 if os.path.lexists(self.dentro(r))]
        if resti:
            raise Errore(f"removed, the package leaves {' '.join(resti)}")


class Portatile(Debian):
    """A fresh Debian without Qt, in which the archive is unpacked."""

    def con_cio_che_serve(self, *comando):
        """A program asks the kernel where it lies."""
        return ("unshare", "--mount", "sh", "-c", 'mount --bind /proc "$0/proc" && exec "$@"', self.radice,
                *comando)

    def installa(self, pacchetto):
        """Raises SenzaDebian where the machine or its archive give none."""
        self.crea()
        os.makedirs(self.dentro("/opt"), exist_ok=True)
        esegui("tar", "-C", self.dentro("/opt"), "--no-same-owner", "-xf", pacchetto)
        self._raggiungi_il_desktop()

    def comando(self):
        # The right to enter the tree stays outside: a program with rights of its own may not name its
        # libraries by the place where it lies.
        return ["chroot", self.radice, "setpriv", "--inh-caps=-all", "--ambient-caps=-all",
                f"/opt/{self._cartella()}/somme"]

    def programma(self):
        return f"/opt/{self._cartella()}/programma"

    def _cartella(self):
        nome, = os.listdir(self.dentro("/opt"))
        return nome

    def togli(self):
        """Each part that goes is missed by its name."""
        for parte in ("lib/libQt6Gui.so.6", "plugins/platforms/libqxcb.so", "somme"):
            percorso = self.dentro(self.programma(), parte)
            os.rename(percorso, percorso + ".via")
            esito = subprocess.run(self.comando(), capture_output=True, text=True, check=False,
                                   env={"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "LANG": "it_IT.UTF-8"})
            os.rename(percorso + ".via", percorso)
            if esito.returncode != 1 or f"programma/{parte}" not in esito.stderr:
                raise Errore(f"without {parte} it ends with {esito.returncode} and says {esito.stderr!r}")
        print("A part that is missing is named.")
        shutil.rmtree(self.dentro("/opt"))


class Cartella(Albero):
    """A plain folder, on the libraries of this machine."""

    def installa(self, pacchetto):
        esegui("dpkg-deb", "-x", pacchetto, self.radice)
        if os.geteuid() != 0:
            esegui("chmod", "-R", "a-w", self.dentro("/usr"))
        self.casa = self.dentro(self.casa)

    def dentro(self, *parti):
        percorso = os.path.join("/", *parti)
        return percorso if percorso.startswith(self.radice + "/") else super().dentro(*parti)

    def comando(self):
        return [self.dentro("/usr/bin/somme")]

    def programma(self):
        return self.dentro("/usr/lib/somme")

    def togli(self):
        if os.geteuid() != 0:
            esegui("chmod", "-R", "u+w", self.radice)
