// The mock works with a thread of its own in libraries built without ThreadSanitizer, which therefore misses how they
// agree among themselves. What that thread does is left out. No code of the program ever runs on it: the main thread,
// the I/O thread and all that lies between them stay watched.

// The name by which the sanitizer asks.
extern "C" const char* __tsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
    return "race:libglib-2.0.so.0\n";
}
