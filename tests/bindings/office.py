"""A spreadsheet without a screen, with an extension installed, for tests that talk to it by UNO.

The office runs in a profile of its own. It refuses root, so that a test that runs as root hands it to the user nobody.
"""

import os
import shutil
import socket
import subprocess
import sys
import tempfile
import time
import zipfile
from pathlib import Path

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.lang import DisposedException

NOBODY = 65534
START_SECONDS = 120
AS_ROOT = os.geteuid() == 0


def make_extension(root, folder):
    """The extension as tools/package makes it, in a folder that is emptied first. Its Python package can be imported then,
    and what is beside the workbook."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    done = subprocess.run([root / "tools" / "package", "--calc", "--to", folder / "dist"], stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, encoding="utf-8", check=False)
    if done.returncode != 0:
        raise SystemExit(done.stdout)
    (extension,) = (folder / "dist").glob("*.oxt")
    with zipfile.ZipFile(extension) as archive:
        archive.extractall(folder / "extension")
    sys.path += [str(folder / "extension" / "pythonpath"), str(root / "examples" / "workbook")]
    return extension


def property_value(name, value):
    return PropertyValue(name, 0, value, 0)


def free_port():
    with socket.socket() as listener:
        listener.bind(("127.0.0.1", 0))
        return listener.getsockname()[1]


class Office:
    """Runs from `with` to its end. Files for it stand in `folder`, which it may read and write."""

    def __init__(self, extension):
        # Root's own folder for such files may be closed to the other user.
        self.folder = Path(tempfile.mkdtemp(prefix="korvel-office.", dir="/tmp" if AS_ROOT else None))
        self.extension = extension
        self.process = self.context = self.desktop = None

    def command(self, *arguments):
        user = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"] if AS_ROOT else []
        profile = f"-env:UserInstallation=file://{self.folder}/profile"
        return [*user, *map(str, arguments[:1]), profile, *map(str, arguments[1:])]

    def environment(self):
        return dict(os.environ, HOME=str(self.folder), OMP_NUM_THREADS="2", TMPDIR=str(self.folder))

    def own(self, *paths):
        if AS_ROOT:
            for path in paths:
                os.chown(path, NOBODY, NOBODY)

    def place(self, path):
        """A copy of a file where the office can read it."""
        copy = self.folder / Path(path).name
        shutil.copy(path, copy)
        copy.chmod(0o644)
        self.own(copy)
        return copy

    def __enter__(self):
        try:
            self.own(self.folder)
            added = subprocess.run(self.command("unopkg", "add", "--force", self.place(self.extension)), cwd=self.folder,
                                   env=self.environment(), stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                   encoding="utf-8", check=False)
            if added.returncode != 0:
                raise RuntimeError(f"unopkg add: exit code {added.returncode}\n{added.stdout}")
            self.start()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def start(self):
        port = free_port()
        self.process = subprocess.Popen(
            self.command("soffice", "--headless", "--norestore", "--nologo",
                         f"--accept=socket,host=127.0.0.1,port={port};urp"),
            cwd=self.folder, env=self.environment(), stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
            start_new_session=True)
        local = uno.getComponentContext()
        resolver = local.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", local)
        deadline = time.monotonic() + START_SECONDS
        while True:
            try:
                self.context = resolver.resolve(
                    f"uno:socket,host=127.0.0.1,port={port};urp;StarOffice.ComponentContext")
                break
            except NoConnectException:
                if self.process.poll() is not None or time.monotonic() > deadline:
                    raise RuntimeError(f"soffice does not answer: {self.process.poll()}") from None
                time.sleep(0.1)
        self.desktop = self.service("com.sun.star.frame.Desktop")

    def service(self, name):
        return self.context.ServiceManager.createInstanceWithContext(name, self.context)

    def open(self, path):
        """A document, calculated anew."""
        document = self.desktop.loadComponentFromURL(Path(path).as_uri(), "_blank", 0, (property_value("Hidden", True),))
        if document is None:
            raise RuntimeError(f"the office does not open {path}")
        document.calculateAll()
        return document

    def save(self, document, path, filter_name):
        document.storeToURL(Path(path).as_uri(), (property_value("FilterName", filter_name),))
        return path

    def is_running(self):
        return self.process.poll() is None

    def __exit__(self, *_):
        if self.desktop is not None:
            try:
                self.desktop.terminate()
            except DisposedException:
                pass
        if self.process is not None:
            try:
                self.process.wait(timeout=20)
            except subprocess.TimeoutExpired:
                os.killpg(self.process.pid, 9)
                self.process.wait()
            self.process.stderr.close()
        shutil.rmtree(self.folder, ignore_errors=True)
