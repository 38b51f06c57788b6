#pragma once

/// Puts the faults between the engine and the files of every connection that is opened from now on.
void useFaultyFiles();

/// Makes an operation of the database engine on its files fail. In force for the object's life; one at a time. What
/// other connections of the test do meanwhile is hit too.
class FileFault {
 public:
  enum class Kind {
    Read,
    Write,
    ShortWrite,  ///< half of the bytes are written, and the operation fails
    FullDisk,    ///< a write fails for want of room, and so does every later one whatever the mode
    Sync,
    Truncate,
    Open,
    Delete,
    SharedMemory  ///< the index of a write-ahead journal cannot be mapped
  };
  enum class Mode {
    Once,       ///< only the operation of that number fails
    FromThenOn  ///< and every one after it
  };

  /// number counts the operations of that kind from 1; 0 makes none fail.
  FileFault(Kind kind, long number, Mode mode);
  FileFault(const FileFault&) = delete;
  FileFault& operator=(const FileFault&) = delete;
  ~FileFault();

  /// The operations of that kind seen so far, failed ones included.
  static long count();
  static long faults();
};
