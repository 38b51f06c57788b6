#include "tour/Tour.h"

#include <initializer_list>

#include "tests/support/Failure.h"
#include "tour/GoodsChapter.h"
#include "tour/InvoiceChapter.h"
#include "tour/OutputChapter.h"
#include "tour/RepairChapter.h"
#include "tour/SearchChapter.h"
#include "tour/VariablesChapter.h"

namespace Tour {

Result takeTour(const std::string& folder, const std::string& plugins) {
  const size_t before = countFailures();
  Stage stage(folder, plugins);
  VariablesChapter variables(stage);
  GoodsChapter goods(stage);
  InvoiceChapter invoice(stage);
  RepairChapter repair(stage);
  OutputChapter output(stage, folder);
  SearchChapter search(stage);
  for (Chapter* chapter : std::initializer_list<Chapter*>{&variables, &goods, &invoice, &repair, &output, &search}) {
    // Each stands on what the ones before it have left.
    if (countFailures() == before) chapter->play();
  }
  return {stage.album.files(), stage.album.countTexts()};
}

}  // namespace Tour
