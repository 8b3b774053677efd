"""served_folder.py FOLDER MOUNTPOINT ORDERS: serves FOLDER at MOUNTPOINT, as a file server does. While the file ORDERS/fail exists,
listing fails; while ORDERS/hang exists, nothing is answered. Where that has met somebody, ORDERS/failed or ORDERS/hung is made."""

import errno
import os
import pathlib
import sys
import time

import fusepy

ORDERS = pathlib.Path(sys.argv[3]).absolute()


class ServedFolder(fusepy.Operations):
    use_ns = True

    def __call__(self, operation, *arguments):
        if operation == "readdir" and (ORDERS / "fail").exists():
            (ORDERS / "failed").touch()
            raise fusepy.FuseOSError(errno.EIO)
        while (ORDERS / "hang").exists():
            (ORDERS / "hung").touch()
            time.sleep(0.05)
        paths = [f".{value}" if isinstance(value, str) and value.startswith("/") else value for value in arguments]
        return super().__call__(operation, *paths)

    def getattr(self, path, _=None):
        status = os.lstat(path)
        return {name: getattr(status, name + "_ns" if "time" in name else name) for name in (
            "st_ino", "st_mode", "st_nlink", "st_uid", "st_gid", "st_size", "st_mtime", "st_ctime")}

    def readdir(self, path, _):
        return [".", "..", *os.listdir(path)]

    def statfs(self, path):
        status = os.statvfs(path)
        return {name: getattr(status, name) for name in ("f_bsize", "f_frsize", "f_blocks", "f_bfree", "f_bavail")}

    def create(self, path, mode, _=None):
        return os.open(path, os.O_RDWR | os.O_CREAT, mode)

    def read(self, _, size, offset, file):
        return os.pread(file, size, offset)

    def write(self, _, data, offset, file):
        return os.pwrite(file, data, offset)

    def truncate(self, path, length, _=None):
        os.truncate(path, length)

    def release(self, _, file):
        os.close(file)

    def link(self, target, source):
        os.link(source, target)

    open = staticmethod(os.open)
    mkdir = staticmethod(os.mkdir)
    rename = staticmethod(os.rename)
    unlink = staticmethod(os.unlink)
    chmod = staticmethod(os.chmod)


if __name__ == "__main__":
    os.chdir(sys.argv[1])
    fusepy.FUSE(ServedFolder(), sys.argv[2], foreground=True)
