#pragma once

namespace android {
namespace dumpbrel {

// One value read from an option's argument with sscanf ("%d" or "%f"). Leading white space and
// a sign are taken, text behind the number is ignored. When sscanf does not read exactly one
// value (no number, empty or missing text), "Invalid argument format. Use: one arg" goes to
// standard error and the result is false; the caller then returns USAGE without calling.
bool scanOne(const char* text, int& out);
bool scanOne(const char* text, float& out);

}  // namespace dumpbrel
}  // namespace android
