#include <gtest/gtest.h>

#include "host/ui/PanelisedWindow.h"
#include "host/ui/ProductDataWindow.h"
#include "host/ui/ServiceDataWindow.h"
#include "host/ui/SuiteDataWindow.h"
#include "tests/support/TestApplication.h"

using Brontel::PanelisedWindow;

TEST(PanelisedWindowTest, knowsTheRecordThatItShows) {
  TestApplication application;
  Brontel::ProductDataWindow product(application.get(), "product");
  Brontel::ServiceDataWindow service(application.get(), "service");
  Brontel::SuiteDataWindow suite(application.get(), "suite");
  for (PanelisedWindow* window : {static_cast<PanelisedWindow*>(&product), static_cast<PanelisedWindow*>(&service),
                                  static_cast<PanelisedWindow*>(&suite)}) {
    EXPECT_EQ(window->getCurrentId(), 0);
    window->setCurrentId(12);
    EXPECT_EQ(window->getCurrentId(), 12);
    EXPECT_TRUE(window->isMemberOf(&PanelisedWindow::metaClass));
  }
  EXPECT_STREQ(suite.getTitle().text(), "suite");
}
