// Linked into every program of a sanitized or fuzz build: the sanitizers' defaults, so that a plain
// run (ctest, a fuzz target, the program) reports alike without any environment. ASAN_OPTIONS and
// UBSAN_OPTIONS still override them. Leaks are looked for and none is suppressed: the tests leave
// none, Qt's offscreen platform included.

#define QUINTARA_SANITIZER_HOOK extern "C" __attribute__((visibility("default"), used))

QUINTARA_SANITIZER_HOOK const char* __asan_default_options() {
    return "detect_leaks=1:check_initialization_order=1:strict_init_order=1:detect_stack_use_after_return=0";
}

QUINTARA_SANITIZER_HOOK const char* __ubsan_default_options() {
    return "print_stacktrace=1:halt_on_error=1";
}
