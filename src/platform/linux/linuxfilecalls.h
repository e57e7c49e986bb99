#pragma once

#include "platform/calltable.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/types.h>
#include <sys/vfs.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace platform {

/// openat() and fcntl() with fixed argument lists, because a call table cannot hold variadic functions.
int openAt(int folder, const char *name, int flags, mode_t mode);
int fileControl(int file, int command, int argument);

/// The calls that find, open, write and remove files and folders, and the transfers on open devices.
struct LinuxFileCalls
{
    int (*openat)(int, const char *, int, mode_t) = &platform::openAt;
    int (*fcntl)(int, int, int) = &platform::fileControl;
    int (*flock)(int, int) = &::flock;

    ssize_t (*read)(int, void *, size_t) = &::read;
    ssize_t (*pread)(int, void *, size_t, off_t) = &::pread;
    ssize_t (*pwrite)(int, const void *, size_t, off_t) = &::pwrite;
    int (*ftruncate)(int, off_t) = &::ftruncate;
    int (*fsync)(int) = &::fsync;
    int (*fdatasync)(int) = &::fdatasync;
    int (*syncfs)(int) = &::syncfs;
    int (*syncFileRange)(int, off64_t, off64_t, unsigned) = &::sync_file_range;

    int (*fstat)(int, struct stat *) = &::fstat;
    int (*fstatat)(int, const char *, struct stat *, int) = &::fstatat;
    int (*statx)(int, const char *, int, unsigned, struct statx *) = &::statx;
    int (*fstatfs)(int, struct statfs *) = &::fstatfs;
    int (*fstatvfs)(int, struct statvfs *) = &::fstatvfs;

    DIR *(*fdopendir)(int) = &::fdopendir;
    dirent *(*readdir)(DIR *) = &::readdir;

    int (*mkdirat)(int, const char *, mode_t) = &::mkdirat;
    int (*fchmodat)(int, const char *, mode_t, int) = &::fchmodat;
    int (*renameat)(int, const char *, int, const char *) = &::renameat;
    int (*unlinkat)(int, const char *, int) = &::unlinkat;
    ssize_t (*flistxattr)(int, char *, size_t) = &::flistxattr;
    ssize_t (*fgetxattr)(int, const char *, void *, size_t) = &::fgetxattr;
    int (*fsetxattr)(int, const char *, const void *, size_t, int) = &::fsetxattr;
};

/// The table in force. Any thread.
inline const LinuxFileCalls &fileCalls()
{
    return CallTable<LinuxFileCalls>::current();
}

} // namespace platform
