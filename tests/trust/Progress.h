#pragma once

#include <atomic>
#include <string>

/// What a process is doing, in memory that outlives it, so that the one that has killed it can see where it was.
class Progress {
 public:
  enum State { Starting, Outside, Inside, Committing };

  /// Shares the memory behind a file, which is created when it is missing.
  explicit Progress(const std::string& path);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  void set(State state) { state_->store(state); }
  State get() const { return static_cast<State>(state_->load()); }

 private:
  std::atomic<int>* state_;
};
