#pragma once

// libxml2's types by the names that it gives them, so that its headers stay in our source files.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
struct _xmlDoc;
struct _xmlNode;
struct _xmlNs;
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
