// Makes the system's calls on the files of one directory fail, for the process that this library is loaded into: linked,
// or named in LD_PRELOAD. A preloaded one is armed by the environment:
//   KAV_FAULTS_UNDER  the directory (absolute)
//   KAV_FAULTS_CALL   one of kavFaultsCalls
//   KAV_FAULTS_NTH    the first call to fail, counted from 1
//   KAV_FAULTS_ERRNO  a number; 0 makes reads and writes do only half; -1 kills the process there, -2 when half of the
//                     write is done
//   KAV_FAULTS_FROM   set: every later call fails as well
//   KAV_FAULTS_SPACE  bytes that may be written; from then on the disk is full, and says so when asked
#pragma once

extern "C" {

/// In the place of an errno.
enum { kavFaultsHalf = 0, kavFaultsKill = -1, kavFaultsKillHalfway = -2 };

/// "open", "read", ... in no special order, up to a null pointer. A name stands for all variants of the call.
extern const char *const kavFaultsCalls[];

/// From now on the `nth` call (from 1) of that name on a file in `directory` fails with `error`, or with `always` every
/// one from there on. Counts anew.
void kavFaultsArm(const char *directory, const char *call, long nth, int error, bool always);
/// From now on the files in `directory` can grow by no more than `bytes`. `isTold` says whether free space is answered
/// accordingly.
void kavFaultsLimitSpace(const char *directory, long bytes, bool isTold);
void kavFaultsDisarm();

/// How many calls of that name there were since the last arming, and how many of them failed.
long kavFaultsCount(const char *call);
long kavFaultsFailed();

/// What was done since the last arming, a line each in its order, with the files' names in the directory ("." for itself):
/// "write NAME" (ftruncate, too), "fsync NAME" (fdatasync, too; not what only begins the writing), "rename FROM TO",
/// "link FROM TO", "unlink NAME". The same again and again is one line.
const char *kavFaultsOrder();
}
