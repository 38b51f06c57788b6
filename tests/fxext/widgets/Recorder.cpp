#include "tests/fxext/widgets/Recorder.h"

#include <algorithm>
#include <cstdlib>

#include <gtest/gtest.h>

using namespace FX;

long Recorder::handle(FXObject* sender, FXSelector sel, void* ptr) {
  Message message{sender, FXSELTYPE(sel), FXSELID(sel), ptr, {}, FXDate(0)};
  const auto content = contents_.find(message.type);
  if (content != contents_.end() && content->second == Text) message.text = static_cast<const FXchar*>(ptr);
  if (content != contents_.end() && content->second == Date) message.date = *static_cast<const FXDate*>(ptr);
  messages_.push_back(message);
  const auto answer = answers_.find(message.type);
  return answer == answers_.end() ? 0 : answer->second;
}

int Recorder::count(FXuint type) const {
  return static_cast<int>(std::count_if(messages_.begin(), messages_.end(),
                                        [type](const Message& message) { return message.type == type; }));
}

const Recorder::Message& Recorder::last(FXuint type) const {
  const auto found = std::find_if(messages_.rbegin(), messages_.rend(),
                                  [type](const Message& message) { return message.type == type; });
  if (found == messages_.rend()) {
    ADD_FAILURE() << "no message of type " << type;
    std::abort();
  }
  return *found;
}
