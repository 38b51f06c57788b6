// The start of the plug-in when memory runs out.

#include <memory>

#include <gtest/gtest.h>

#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginModule.h"
#include "host/ui/Morvane.h"
#include "itemdata/ItemDataPluginList.h"
#include "plugin/GetPlugin.h"
#include "tests/support/AllocationLimit.h"

using Brontel::Plugin::PluginContainer;
using Brontel::Plugin::ItemData::plugins;

namespace {

FX::FXint countKinds() {
  FX::FXint kinds = 0;
  for (FX::FXint i = 0; i < plugins.no(); ++i) kinds += plugins[i] == nullptr ? 0 : 1;
  return kinds;
}

}  // namespace

TEST(ContainerMemoryTest, givesNoPlugInWithoutMemory) {
  Brontel::Morvane app;
  const AllocationLimit limit(0);
  EXPECT_EQ(get_plugin(&app), nullptr);
}

TEST(ContainerMemoryTest, registersAllOrNothing) {
  constexpr FX::FXint kModules = 4;
  constexpr FX::FXint kKinds = 3;
  Brontel::Morvane app;
  int refused = 0;
  for (bool complete = false; !complete; ++refused) {
    const std::unique_ptr<PluginContainer> container(get_plugin(&app));
    {
      const AllocationLimit limit(refused);
      EXPECT_EQ(container->init(), 1);
    }
    complete = container->getModules().no() > 0;
    EXPECT_EQ(container->getModules().no(), complete ? kModules : 0) << refused;
    EXPECT_EQ(countKinds(), complete ? kKinds : 0) << refused;
    // With memory again, the next attempt does everything.
    EXPECT_EQ(container->init(), 1);
    EXPECT_EQ(container->getModules().no(), kModules) << refused;
    EXPECT_EQ(countKinds(), kKinds) << refused;
  }
  EXPECT_GT(refused, kModules + kKinds);
}
