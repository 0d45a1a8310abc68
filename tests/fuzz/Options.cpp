// What the sanitizers are to do in every fuzz program, however it is started.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizers' own.

extern "C" const char *__ubsan_default_options()
{
    return "halt_on_error=1:print_stacktrace=1"; // otherwise a fault is one line in a log, and the run goes on
}

// NOLINTEND(bugprone-reserved-identifier)
