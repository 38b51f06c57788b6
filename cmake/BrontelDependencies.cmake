# The libraries the project stands on. Their headers are system headers, so that warnings in them are not ours.
find_package(PkgConfig REQUIRED)
pkg_check_modules(FOX REQUIRED IMPORTED_TARGET fox)
add_library(Fox::Fox ALIAS PkgConfig::FOX)
find_package(SQLite3 3.37 REQUIRED)
find_package(LibXml2 REQUIRED)
find_package(Intl REQUIRED)
pkg_check_modules(PANGOCAIRO REQUIRED IMPORTED_TARGET pangocairo)
