// The resource set "texts": the translation catalogs.
#pragma once

// Registers the catalogs under ":/<code>.qm". The generated unit does so by itself before main(); the call keeps it
// linked and is harmless when repeated. Returns 1. Main thread. Source: rcc, "-name".
int qInitResources_texts();  // NOLINT(readability-identifier-naming): rcc makes the name.
