#pragma once

#include <fx.h>

#include "host/entity/EntityMiscData.h"

namespace Remarks {

/// What somebody has remarked about an invoice item. The item keeps it and deletes it.
class Remark : public Brontel::EntityMiscData {
 public:
  /// Under which an item keeps it. Another plug-in has another key.
  static constexpr const char* kKey = "Remark";

  Remark(Brontel::Entity* item, const FX::FXString& text) : EntityMiscData(item), text_(text) {}

  const FX::FXString& getText() const { return text_; }
  void setText(const FX::FXString& text) { text_ = text; }

  /// For a copy of the item, which owns the copy of the remark.
  Remark* clone(Brontel::Entity* newOwner) const override;

  /// The item's remark, or null; the item keeps it.
  static Remark* of(const Brontel::Entity* item);
  /// The item's text; empty without a remark.
  static FX::FXString textOf(const Brontel::Entity* item);
  /// Gives the item that text.
  static void set(Brontel::Entity* item, const FX::FXString& text);

 private:
  FX::FXString text_;
};

}  // namespace Remarks
