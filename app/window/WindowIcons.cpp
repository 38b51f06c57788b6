#include "app/window/WindowIcons.h"

namespace Brontel::App {

constinit const PixelIcon::Gif icon_blocking = PixelIcon::gif(R"(
................
.....rrrrrr.....
...rrrrrrrrrr...
..rrrrrrrrrrrr..
..rrwwrrrrwwrr..
.rrrwwwrrwwwrrr.
.rrrrwwwwwwrrrr.
.rrrrrwwwwrrrrr.
.rrrrrwwwwrrrrr.
.rrrrwwwwwwrrrr.
.rrrwwwrrwwwrrr.
..rrwwrrrrwwrr..
..rrrrrrrrrrrr..
...rrrrrrrrrr...
.....rrrrrr.....
................
)");

constinit const PixelIcon::Gif icon_notice = PixelIcon::gif(R"(
................
.....bbbbbb.....
...bbbbbbbbbb...
..bbbbbwwbbbbb..
..bbbbbwwbbbbb..
.bbbbbbbbbbbbbb.
.bbbbbwwwbbbbbb.
.bbbbbbwwbbbbbb.
.bbbbbbwwbbbbbb.
.bbbbbbwwbbbbbb.
.bbbbbbwwbbbbbb.
..bbbbwwwwbbbb..
..bbbbbbbbbbbb..
...bbbbbbbbbb...
.....bbbbbb.....
................
)");

constinit const PixelIcon::Gif icon_invoice = PixelIcon::gif(R"(
..dddddddddd....
..dwwwwwwwwdd...
..dwwwwwwwwdwd..
..dwbbbbbwwdddd.
..dwwwwwwwwwwwd.
..dwgggggggggwd.
..dwwwwwwwwwwwd.
..dwgggggggggwd.
..dwwwwwwwwwwwd.
..dwggggggwrrwd.
..dwwwwwwwwwwwd.
..dwwwwwwwGGGwd.
..dwwwwwwwGGGwd.
..dwwwwwwwwwwwd.
..ddddddddddddd.
................
)");

}  // namespace Brontel::App
