#pragma once

#include <functional>
#include <utility>

#include "host/message/MessageEvent.h"

/// An event that counts the living ones and does what it is told.
class CountingEvent : public Brontel::MessageEvent {
 public:
  explicit CountingEvent(int& living, std::function<void()> action = {}) : living_(living), action_(std::move(action)) {
    ++living_;
    kind_ = 2;
  }
  ~CountingEvent() override { --living_; }

  void execute(Brontel::Message* message, int arg) override {
    lastMessage = message;
    lastArg = arg;
    if (action_) action_();
  }

  Brontel::Message* lastMessage = nullptr;
  int lastArg = 0;

 private:
  int& living_;
  std::function<void()> action_;
};
