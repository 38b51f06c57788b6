#pragma once

#include <map>
#include <string>
#include <vector>

#include <fx.h>

/// A target that keeps what it is told.
class Recorder : public FX::FXObject {
 public:
  /// What a message's pointer leads to.
  enum Content { Nothing, Text, Date };

  struct Message {
    FX::FXObject* sender;
    FX::FXuint type;
    FX::FXuint id;
    void* data;
    std::string text;
    FX::FXDate date;
  };

  /// Declares what messages of a type carry, so that it is kept.
  void expect(FX::FXuint type, Content content) { contents_[type] = content; }
  /// Answers messages of a type with something else than 0.
  void answer(FX::FXuint type, long result) { answers_[type] = result; }

  long handle(FX::FXObject* sender, FX::FXSelector sel, void* ptr) override;

  int count(FX::FXuint type) const;
  /// The last message of a type; there must have been one.
  const Message& last(FX::FXuint type) const;
  const std::vector<Message>& messages() const { return messages_; }
  void clear() { messages_.clear(); }

 private:
  std::map<FX::FXuint, Content> contents_;
  std::map<FX::FXuint, long> answers_;
  std::vector<Message> messages_;
};
