#pragma once

#include "tour/Chapter.h"

namespace Brontel {
class GoodsDataWindow;
}

namespace Tour {

/// A new product and a service that is there already get variables.
class GoodsChapter : public Chapter {
 public:
  using Chapter::Chapter;
  void play() override;

 private:
  /// The lists of the plug-in's panel: what can be chosen and what is chosen, for purchases and for sales.
  struct Panel {
    std::vector<FX::FXList*> lists;
    std::vector<FX::FXArrowButton*> arrows;
  };
  enum List { INCOMING_FREE, INCOMING_CHOSEN, OUTGOING_FREE, OUTGOING_CHOSEN, LISTS };
  enum Arrow { CHOOSE, GIVE_BACK, UP, DOWN, ARROWS };

  void addProduct();
  void editService();
  Brontel::GoodsDataWindow* newestGoods();
  /// Brings the plug-in's panel to the front; its lists are missing when that fails.
  Panel openPanel(FX::FXWindow& window);
  void takeForSales(const Panel& panel, const char* variable);
  static void expectLines(const FX::FXList& list, const Texts& expected);
  void accept(FX::FXWindow& window);
};

}  // namespace Tour
