#!/usr/bin/env python3
"""Ends erasure jobs of quorvex-cli at random moments, and checks what they leave.

A kill (SIGKILL) may come at any moment. Afterwards no report and no last line may call the job successful unless every
byte is erased, the report database is whole and opens, nothing but the target has changed, and the next job removes what
is left and succeeds. A stop (SIGINT) ends in the exit code 4, in a report of a cancelled job, and leaves no fill.

All drives, volumes and bins are images of this program in a temporary folder. Needs root.
"""

import argparse
import hashlib
import json
import os
import random
import secrets
import shutil
import signal
import sqlite3
import struct
import subprocess
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path

MIB = 1024 * 1024
SUCCESSES = ("complete", "partial")
CANCELLED = "cancelled"
# The status of a stored report.
COMPLETED = 3
ENDED_EARLY = (4, 5)
LAST_PASS = 0xAA  # of VSITR
SID = "S-1-5-21-1-2-3-1001"


class Loss(Exception):
    """What must never happen."""


def require(condition, text):
    if not condition:
        raise Loss(text)


def command(*words):
    done = subprocess.run([str(word) for word in words], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"error: {' '.join(map(str, words))}: {done.stderr.strip()}")
    return done.stdout.strip()


class Secret:
    """A text that stands nowhere else, because what an earlier job left must not count."""

    def __init__(self):
        self.text = f"Text {secrets.token_hex(8)} must go. ".encode()

    def content(self, size):
        return (self.text * (size // len(self.text) + 1))[:size]


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


class Volume:
    """A mounted file system with files that no job is told to touch."""

    def __init__(self, media, name, size):
        self.image = media.folder / f"{name}.img"
        self.mount = media.folder / name
        with self.image.open("wb") as image:
            image.truncate(size)
        self.mount.mkdir()
        loop = media.attach(self.image)
        command("mkfs.ext4", "-q", "-m", "0", loop)
        command("mount", loop, self.mount)
        media.mounts.append(self.mount)
        keep = self.mount / "keep"
        keep.mkdir()
        for number in range(20):
            (keep / f"file {number}").write_bytes(secrets.token_bytes(5000 * (number + 1)))

    def sync(self):
        command("sync", "--file-system", self.mount)

    def count(self, text):
        """How often the text stands on the medium."""
        self.sync()
        return self.image.read_bytes().count(text)

    def fill_folders(self):
        return [path for path in self.mount.iterdir() if path.name.startswith(".quorvex")]

    def fills(self):
        """What lies in the folders of free-space jobs. An empty folder stays on purpose."""
        return [str(path) for folder in self.fill_folders() for path in folder.iterdir()]


class Media:
    """A drive in the middle of an image, a second drive, and two volumes."""

    DRIVE = 24 * MIB
    EDGE = MIB

    def __init__(self, folder):
        self.folder = folder
        self.loops = []
        self.mounts = []
        self.data = folder / "data"
        self.image = folder / "drive.img"
        self.other_image = folder / "other.img"

    def __enter__(self):
        try:
            self.make()
        except BaseException:
            self.__exit__()
            raise
        return self

    def make(self):
        # In memory, so that the moments depend on the program and not on a drive.
        command("mount", "-t", "tmpfs", "-o", "size=1g", "tmpfs", self.folder)
        self.mounts.append(self.folder)
        self.image.write_bytes(secrets.token_bytes(self.DRIVE + 2 * self.EDGE))
        self.other_image.write_bytes(secrets.token_bytes(4 * MIB))
        self.drive = self.attach(self.image, "--offset", self.EDGE, "--sizelimit", self.DRIVE)
        self.attach(self.other_image)
        self.volume = Volume(self, "volume", 48 * MIB)
        self.large_volume = Volume(self, "large volume", 180 * MIB)
        self.volumes = (self.volume, self.large_volume)
        self.before = self.bystanders()

    def attach(self, image, *options):
        loop = command("losetup", "--find", "--show", *options, image)
        self.loops.append(loop)
        return loop

    def __exit__(self, *_):
        for mount in self.mounts[1:]:
            command("umount", mount)
        for loop in self.loops:
            command("losetup", "--detach", loop)
        for mount in self.mounts[:1]:
            command("umount", mount)

    def drive_content(self):
        return self.image.read_bytes()[self.EDGE : self.EDGE + self.DRIVE]

    def fill_drive(self, content):
        with self.image.open("r+b") as image:
            image.seek(self.EDGE)
            image.write(content)
            os.fsync(image.fileno())
        command("blockdev", "--flushbufs", self.drive)

    def bystanders(self):
        """The checksums of everything that no job may touch."""
        image = self.image.read_bytes()
        sums = {
            "before the drive": hashlib.sha256(image[: self.EDGE]).hexdigest(),
            "behind the drive": hashlib.sha256(image[self.EDGE + self.DRIVE :]).hexdigest(),
            "the other drive": digest(self.other_image),
        }
        for volume in self.volumes:
            for path in sorted((volume.mount / "keep").iterdir()):
                sums[f"{path.name} on the {volume.mount.name}"] = digest(path)
        return sums

    def check_bystanders(self):
        for volume in self.volumes:
            require(os.path.ismount(volume.mount), f"the {volume.mount.name} is mounted no more")
        now = self.bystanders()
        changed = [name for name in self.before if now.get(name) != self.before[name]]
        require(not changed and len(now) == len(self.before), f"not the target, and changed: {changed}")


class DiskJob:
    name = "disk"

    def __init__(self, media):
        self.media = media
        self.words = ["disk", media.drive, "--method", "3", "--buffer-mb", "1"]

    def prepare(self):
        self.content = Secret().content(Media.DRIVE)
        self.media.fill_drive(self.content)

    def is_untouched(self):
        return self.media.drive_content() == self.content

    def is_there(self):
        return True

    def check_erased(self):
        content = self.media.drive_content()
        wrong = len(content) - content.count(LAST_PASS)
        require(wrong == 0, f"{wrong} bytes of the drive are not of the last pass")


class VolumeJob:
    def __init__(self, volume):
        self.volume = volume

    def check_volume(self):
        found = self.volume.count(self.secret.text)
        require(found == 0, f"the text stands {found} times on the volume")


class FilesJob(VolumeJob):
    name = "files"

    def __init__(self, media):
        super().__init__(media.volume)
        self.folder = self.volume.mount / "target"
        self.words = ["files", self.folder, "--method", "2"]

    def prepare(self):
        self.secret = Secret()
        shutil.rmtree(self.folder, ignore_errors=True)
        for number in range(4):
            (self.folder / f"folder {number}").mkdir(parents=True)
        for number in range(60):
            path = self.folder / f"folder {number % 4}" / f"file {number}"
            path.write_bytes(self.secret.content(1000 + 8192 * number % 300000))
        self.volume.sync()
        self.names = self.listing()

    def listing(self):
        return {path: path.read_bytes() for path in self.folder.rglob("*") if path.is_file()}

    def is_untouched(self):
        return self.folder.is_dir() and self.listing() == self.names

    def is_there(self):
        return self.folder.exists()

    def check_erased(self):
        require(not self.folder.exists(), "the folder is still there")
        self.check_volume()


class TrashJob(VolumeJob):
    name = "trash"

    def __init__(self, media):
        super().__init__(media.volume)
        self.bin = self.volume.mount / "$Recycle.Bin" / SID
        self.words = ["trash", "--root", self.volume.mount, "--sid", SID, "--method", "1"]

    def prepare(self):
        self.secret = Secret()
        shutil.rmtree(self.bin.parent, ignore_errors=True)
        self.bin.mkdir(parents=True)
        for number in range(60):
            content = self.secret.content(1000 + 8192 * number % 200000)
            (self.bin / f"$R{number:06}.txt").write_bytes(content)
            original = f"C:\\deleted\\{number}.txt\0"
            record = struct.pack("<QQQI", 2, len(content), 0x01DA5C0FFEE00000, len(original))
            (self.bin / f"$I{number:06}.txt").write_bytes(record + original.encode("utf-16-le"))
        self.volume.sync()
        self.names = self.listing()

    def listing(self):
        """A round of the journal that was killed leaves a folder of empty files, which holds nothing of the user."""
        return {path.name: path.read_bytes() for path in self.bin.iterdir() if path.is_file()}

    def is_untouched(self):
        return self.listing() == self.names

    def is_there(self):
        return self.bin.exists()

    def check_erased(self):
        left = [name for name in self.listing() if name != "desktop.ini"] if self.bin.exists() else []
        require(not left, f"the bin still holds {left[:5]}")
        self.check_volume()


class FreeJob(VolumeJob):
    """The job leaves a reserve of 100 MiB on a volume, so that the text stands in it afterwards."""

    name = "free"
    RESERVE = 100 * MIB

    def __init__(self, media):
        super().__init__(media.large_volume)
        self.words = ["free", self.volume.mount, "--method", "0", "--accept", "large-reserve"]

    def prepare(self):
        for folder in self.volume.fill_folders():
            shutil.rmtree(folder)
        path = self.volume.mount / "deleted"
        self.secret = Secret()
        path.write_bytes(self.secret.content(self.RESERVE + 30 * MIB))
        self.volume.sync()
        path.unlink()
        self.found = self.volume.count(self.secret.text)

    def is_untouched(self):
        return not self.volume.fills() and self.volume.count(self.secret.text) == self.found

    def is_there(self):
        return True

    def check_erased(self):
        require(not self.volume.fills(), f"the fill is still there: {self.volume.fills()}")
        left = self.volume.count(self.secret.text) * len(self.secret.text)
        require(left <= self.RESERVE, f"{left} bytes of the text stand on the volume")


class Run:
    """One run of the program, with what it said."""

    def __init__(self, program, media, job, ending=None, delay=0.0):
        words = [program, "--json", "--data-dir", media.data, "wipe", *job.words, "--yes"]
        began = time.monotonic()
        process = subprocess.Popen(
            [str(word) for word in words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE
        )
        if ending is not None:
            time.sleep(max(0.0, began + delay - time.monotonic()))
            process.send_signal(ending)
        self.out, self.errors = process.communicate()
        self.seconds = time.monotonic() - began
        self.code = process.returncode
        self.end = {}
        for line in self.out.splitlines():
            try:
                event = json.loads(line)
            except ValueError:
                continue  # cut off by a kill
            if event.get("event") == "finished":
                self.end = event

    def says_success(self):
        return self.end.get("success") is True or self.end.get("outcome") in SUCCESSES

    def text(self):
        return f"exit code {self.code}, {self.out[-300:]!r} {self.errors[-600:]!r}"


class Endurance:
    def __init__(self, program, media, randomness):
        self.program = program
        self.media = media
        self.random = randomness
        self.jobs = [kind(media) for kind in (DiskJob, FilesJob, TrashJob, FreeJob)]
        self.known = set()
        self.counts = {job.name: Counter() for job in self.jobs}
        self.lengths = {}

    def reports(self):
        done = subprocess.run(
            [self.program, "--json", "--data-dir", self.media.data, "reports", "list", "--limit", "1000000"],
            capture_output=True,
            check=False,
        )
        require(done.returncode == 0, f"the reports cannot be listed: {done.stderr!r}")
        listed = json.loads(done.stdout)
        require(not any(report.get("damaged") for report in listed), "a stored report is damaged")
        return {report["certificateId"]: report for report in listed}

    def new_reports(self):
        stored = self.reports()
        require(self.known <= stored.keys(), "a stored report is gone")
        new = [stored[name] for name in stored.keys() - self.known]
        self.known = set(stored)
        return new

    def check_database(self):
        database = self.media.data / "quorvex.db"
        if not database.exists():
            return
        connection = sqlite3.connect(database)
        answer = connection.execute("PRAGMA integrity_check").fetchall()
        connection.close()
        require(answer == [("ok",)], f"the database is damaged: {answer}")

    @staticmethod
    def is_success(report):
        return report["status"] == COMPLETED or report["annex"]["outcome"] in SUCCESSES

    def finish(self, job):
        """A job that is left alone succeeds, and erases everything."""
        is_empty = isinstance(job, FilesJob) and job.is_there() and not job.listing()
        run = Run(self.program, self.media, job)
        if is_empty:
            # A job that finds no file fails, after it has removed the folders.
            require(run.code == 1 and not run.says_success(), run.text())
            job.check_erased()
            require(not any(map(self.is_success, self.new_reports())), "success without a file")
            self.media.check_bystanders()
            return run
        require(run.code == 0 and run.says_success(), f"the {job.name} job failed: {run.text()}")
        job.check_erased()
        new = self.new_reports()
        # An empty bin needs no job and has no report.
        require(len(new) == (1 if run.end["certificateId"] else 0), f"{len(new)} new reports of one job")
        require(all(map(self.is_success, new)), f"the report is of no success: {new}")
        self.media.check_bystanders()
        return run

    def measure(self):
        """A first run of each job tells how long it takes here."""
        for job in self.jobs:
            job.prepare()
            require(job.is_untouched(), f"the {job.name} target is not as it was made")
            self.lengths[job.name] = self.finish(job).seconds

    def delay(self, job):
        return self.random.uniform(0.0, self.lengths[job.name] * 1.05)

    def kill(self, job):
        job.prepare()
        delay = self.delay(job)
        run = Run(self.program, self.media, job, signal.SIGKILL, delay)
        require(run.code in (0, -signal.SIGKILL), run.text())
        self.check_database()
        new = self.new_reports()
        success = run.code == 0 or run.says_success() or any(map(self.is_success, new))
        self.media.check_bystanders()
        if success:
            job.check_erased()
            self.counts[job.name]["erased"] += 1
        elif job.is_there() and job.is_untouched():
            self.counts[job.name]["before"] += 1
        else:
            self.counts[job.name]["middle"] += 1
        if success or not job.is_there():
            if not job.is_there():
                job.check_erased()
            return
        # The machine may be busier than before.
        self.lengths[job.name] += 0.2 * (self.finish(job).seconds - self.lengths[job.name])

    def stop(self, job):
        job.prepare()
        run = Run(self.program, self.media, job, signal.SIGINT, self.delay(job))
        require(b"ThreadSanitizer" not in run.errors, run.errors.decode(errors="replace"))
        self.check_database()
        new = self.new_reports()
        self.media.check_bystanders()
        for volume in self.media.volumes:
            require(not volume.fills(), f"a stopped {job.name} job leaves its fill: {volume.fills()}")
        if run.code == 0:
            require(run.says_success() and len(new) == 1 and self.is_success(new[0]), run.text())
            job.check_erased()
            self.counts[job.name]["erased"] += 1
        elif run.code == 4 and run.end:
            require(run.end.get(CANCELLED) is True and run.end.get("outcome") == CANCELLED, run.text())
            require(not run.says_success(), run.text())
            require([report["annex"]["outcome"] for report in new] == [CANCELLED], f"stored: {new}")
            require(new[0]["status"] in ENDED_EARLY, f"stored: {new}")
            require(new[0]["certificateId"] == run.end["certificateId"], f"stored: {new}")
            self.counts[job.name]["middle"] += 1
        else:
            # A signal before the first line of the program, or before the job.
            require(run.code in (4, -signal.SIGINT), run.text())
            require(not new and job.is_untouched(), f"neither stopped nor untouched: {run.text()}")
            self.counts[job.name]["before"] += 1

    def repeat(self, what, times):
        """Every kind of job in turn, so that few are enough for all."""
        self.counts = {job.name: Counter() for job in self.jobs}
        for number in range(times):
            job = self.jobs[number % len(self.jobs)]
            try:
                what(job)
            except Loss as loss:
                sys.exit(f"error: {what.__name__} {number + 1}, {job.name}: {loss}")
            if (number + 1) % 100 == 0:
                print(f"  {number + 1} of {times}", flush=True)
        print(f"\n{what.__name__ + 's':<8}{'in all':>8}{'untouched':>11}{'in the middle':>15}{'all erased':>12}")
        for name, count in self.counts.items():
            print(f"{name:<8}{count.total():>8}{count['before']:>11}{count['middle']:>15}{count['erased']:>12}")
        middle = sum(count["middle"] for count in self.counts.values())
        if times >= 8 and middle == 0:
            sys.exit(f"error: no {what.__name__} came in the middle of a job")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--program", type=Path, required=True, help="quorvex-cli")
    parser.add_argument("--kills", type=int, default=20)
    parser.add_argument("--stops", type=int, default=20)
    parser.add_argument("--seed", type=int, default=secrets.randbits(32))
    arguments = parser.parse_args()
    # An exception, so that the media are given back.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("error: terminated"))
    print(f"Seed {arguments.seed}", flush=True)
    with tempfile.TemporaryDirectory(prefix="quorvex-endurance.") as folder, Media(Path(folder)) as media:
        endurance = Endurance(arguments.program.resolve(), media, random.Random(arguments.seed))
        try:
            endurance.measure()
        except Loss as loss:
            sys.exit(f"error: {loss}")
        print("Seconds: " + ", ".join(f"{name} {length:.2f}" for name, length in endurance.lengths.items()))
        endurance.repeat(endurance.kill, arguments.kills)
        endurance.repeat(endurance.stop, arguments.stops)


if __name__ == "__main__":
    main()
