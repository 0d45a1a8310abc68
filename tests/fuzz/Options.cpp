// What the sanitizers are to do in every fuzz program, however it is started.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the sanitizers' own.

extern "C" const char *__ubsan_default_options()
{
    return "halt_on_error=1:print_stacktrace=1"; // otherwise a fault is one line in a log, and the run goes on
}

// Qt's own parser loses an object whose key comes twice; its frames have no names that one could give here.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libQt5Core.so\n";
}

extern "C" const char *__lsan_default_options()
{
    return "print_suppressions=0";
}

// NOLINTEND(bugprone-reserved-identifier)
