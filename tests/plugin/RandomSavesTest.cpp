// Two invoices that are edited, saved, saved in vain and saved again in any order always have stored what was in their
// cells at their last good save.

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "tests/plugin/PluginWorld.h"
#include "tests/support/FaultObserver.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using Result = PluginWorld::Result;
using Texts = std::vector<std::string>;

namespace {

/// One invoice with one sofa, and what the database has to hold of it.
struct Subject {
  std::unique_ptr<Invoice> invoice;
  Texts stored;

  InvoiceItem* item() const { return invoice->getItems()[0]; }
};

class RandomSaves {
 public:
  explicit RandomSaves(unsigned seed) : random_(seed) {
    for (Subject& subject : subjects_) {
      subject.invoice = newInvoice();
      world_.addSofa(*subject.invoice, "5", "note", {{"5", "batch"}});
    }
  }

  void run(int steps) {
    for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
      Subject& subject = subjects_[below(2)];
      switch (below(7)) {
        case 0:
          addRow(subject.item(), {number(), number(), "kék"});
          break;
        case 1:
          dataOf(subject.item())->markRowForDelete(1 + static_cast<int>(below(4)));
          break;
        case 2:
          edit(subject);
          break;
        case 3:
          world_.check(*subject.invoice);
          break;
        case 4:
          saveInVain(subject);
          break;
        case 5:
          reload(subject);
          break;
        default:
          save(subject);
      }
      expectStored();
    }
  }

 private:
  unsigned below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }
  const char* number() {
    static const char* const numbers[] = {"1", "2", "3.5", "7", "11"};
    return numbers[below(5)];
  }

  void edit(Subject& subject) {
    const ItemDataList& list = *dataOf(subject.item());
    ItemDataEntry* entry = list[static_cast<FX::FXint>(below(static_cast<unsigned>(list.no())))];
    if (ItemDataEntry::isLive(entry)) entry->value = number();
  }

  void save(Subject& subject) {
    EXPECT_EQ(world_.repository().save(*subject.invoice), Result::Done);
    subject.stored = liveCells(subject);
  }

  void saveInVain(Subject& subject) {
    const FaultObserver fault(world_.handle(), 1 + static_cast<int>(below(30)));
    const Result result = world_.repository().save(*subject.invoice);
    EXPECT_EQ(result, fault.faults() > 0 ? Result::Failed : Result::Done);
    if (result == Result::Done) subject.stored = liveCells(subject);
  }

  void reload(Subject& subject) {
    if (subject.invoice->getId() == 0) return;
    subject.invoice = world_.load(*subject.invoice);
    EXPECT_EQ(liveCells(subject), subject.stored);
  }

  static Texts liveCells(const Subject& subject) {
    Texts live = cells(subject.item());
    std::erase_if(live, [](const std::string& text) { return text.ends_with(" deleted"); });
    std::sort(live.begin(), live.end());
    return live;
  }

  void expectStored() const {
    size_t count = 0;
    for (const Subject& subject : subjects_) {
      Texts stored = world_.stored(*subject.item());
      std::sort(stored.begin(), stored.end());
      EXPECT_EQ(stored, subject.stored);
      count += stored.size();
    }
    EXPECT_EQ(world_.database().text("select count(*) from t_invoiceitemdata"), std::to_string(count));
  }

  std::minstd_rand random_;
  mutable PluginWorld world_;
  Subject subjects_[2];
};

}  // namespace

TEST(RandomSavesTest, theDatabaseHoldsTheLastGoodSave) {
  for (unsigned seed = 1; seed <= 30 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomSaves(seed).run(60);
  }
}
