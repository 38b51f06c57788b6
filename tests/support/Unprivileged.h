#pragma once

#include <sys/types.h>

/// While the object lives, a process that runs as root acts as "nobody", for whom the rights of files mean something.
/// For any other user, who is bound by them anyway, it does nothing. Folders that are to be reached meanwhile have to
/// be shared before.
class Unprivileged {
 public:
  Unprivileged();
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;
  ~Unprivileged();

 private:
  const uid_t user_;
};
