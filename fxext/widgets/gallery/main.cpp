#include <iostream>
#include <memory>
#include <string>

#include <fx.h>

#include "fxext/widgets/gallery/GalleryWindow.h"
#include "fxext/widgets/gallery/HungarianNames.h"
#include "fxext/widgets/gallery/Picture.h"

using namespace FX;

namespace {

constexpr const char* kUsage =
    "usage: fxext-gallery [--picture FILE] [--open combo|date|year] [--font FONT] [--hungarian]\n"
    "Shows every widget in every state; with --picture saves that as a PNG and ends.\n";

struct Options {
  std::string picture;
  std::string open;
  std::string font;
  bool hungarian = false;
  bool valid = true;
};

// FOX takes its own arguments out before.
Options parse(int argc, char* argv[]) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    std::string* const value = argument == "--picture" ? &options.picture
                               : argument == "--open"  ? &options.open
                               : argument == "--font"  ? &options.font
                                                       : nullptr;
    if (argument == "--hungarian") {
      options.hungarian = true;
    } else if (value && i + 1 < argc) {
      *value = argv[++i];
    } else {
      options.valid = false;
    }
  }
  return options;
}

// FOX lays out, paints and updates when there is nothing else to do, and an update of the window takes a step per
// widget.
void settle(FXApp& app) {
  constexpr int kQuietSteps = 2000;
  for (int quiet = 0; quiet < kQuietSteps; ++quiet) {
    app.flush(true);
    if (app.runOneEvent(false)) quiet = 0;
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  FXApp app("fxext-gallery", "Brontel");
  app.init(argc, argv);
  const Options options = parse(argc, argv);
  if (!options.valid) {
    std::cerr << kUsage;
    return 2;
  }
  // FOX owns the font that it began with, and the translator that it ends with.
  std::unique_ptr<FXFont> font;
  if (!options.font.empty()) {
    font = std::make_unique<FXFont>(&app, options.font.c_str());
    app.setNormalFont(font.get());
  }
  if (options.hungarian) {
    delete app.getTranslator();
    app.setTranslator(new HungarianNames(&app));
  }
  const auto window = std::make_unique<GalleryWindow>(&app);
  app.create();
  window->show(PLACEMENT_DEFAULT);
  while (!window->isMapped()) app.runOneEvent();
  settle(app);
  if (!options.open.empty() && !window->open(options.open.c_str())) {
    std::cerr << kUsage;
    return 2;
  }
  if (options.picture.empty()) return app.run();
  window->setFocus();
  settle(app);
  if (Picture(window.get()).save(options.picture.c_str())) return 0;
  std::cerr << "fxext-gallery: cannot write " << options.picture << std::endl;
  return 1;
}
