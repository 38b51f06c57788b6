#include <cstdlib>

#include <gtest/gtest.h>
#include <libintl.h>

#include "host/ui/HostIcons.h"
#include "host/ui/Morvane.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/TestDatabase.h"

using Brontel::Morvane;

TEST(MorvaneTest, isTheApplicationAlsoWithoutDisplay) {
  Morvane app;
  FX::FXApp* fox = &app;
  EXPECT_EQ(FX::FXApp::instance(), fox);
  EXPECT_STREQ(app.getAppName().text(), "brontel-host");
  EXPECT_FALSE(app.isInitialized());
  FX::FXGIFIcon icon(&app, Brontel::icon_delete.data(), FXRGB(192, 192, 192), 0);
  EXPECT_EQ(icon.getWidth(), 16);
}

TEST(MorvaneTest, givesTheDatabaseThatItWasGiven) {
  Morvane app;
  EXPECT_EQ(app.getDB(), nullptr);
  TestDatabase database;
  app.setDB(database.get());
  const Morvane& constant = app;
  EXPECT_EQ(constant.getDB(), database.get());
  EXPECT_EQ(constant.getDB(), constant.getDB());
  app.setDB(nullptr);
  EXPECT_EQ(app.getDB(), nullptr);
}

TEST(MorvaneTest, lendsIconsAndColours) {
  const Morvane app;
  ASSERT_NE(app.getNewRowIcon(), nullptr);
  ASSERT_NE(app.getDeleteIcon(), nullptr);
  EXPECT_NE(app.getNewRowIcon(), app.getDeleteIcon());
  EXPECT_EQ(app.getNewRowIcon(), app.getNewRowIcon());
  EXPECT_EQ(app.getPanelBackColor(), app.getBaseColor());
}

TEST(MorvaneTest, bindsTextsToItsFolder) {
  const TemporaryDirectory directory;
  MessageCatalog catalog;
  catalog.add("Törlés", "Borttagning");
  ASSERT_TRUE(catalog.install(directory.path(), "sv", "morvane-test"));
  setenv("LANGUAGE", "sv", 1);
  Morvane app;
  app.bindTextDomain("");
  app.bindTextDomain("morvane-test");
  EXPECT_STREQ(dgettext("morvane-test", "Törlés"), "Törlés");
  app.setLocaleDirectory(directory.path().c_str());
  app.bindTextDomain("morvane-test");
  EXPECT_STREQ(dgettext("morvane-test", "Törlés"), "Borttagning");
  EXPECT_STREQ(bind_textdomain_codeset("morvane-test", nullptr), "UTF-8");
  unsetenv("LANGUAGE");
}
