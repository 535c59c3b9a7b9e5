#include "Trail.h"

#include <QLoggingCategory>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

// The sanitizers' run-time has it; a plain build does without.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

// Qt itself is not built with the sanitizer: that it uses freed memory shows when that is filled.
extern "C" const char *__asan_default_options()
{
    return "max_free_fill_size=1048576:free_fill_byte=221";
}

namespace {

constexpr unsigned Patience = 60; // seconds for one event, under emulation and sanitizers too
constexpr int MostShownWarnings = 20;
constexpr size_t Lines = 16;
constexpr size_t LineLength = 200;

// Plain memory: it is read in signal handlers.
char trail[Lines][LineLength];
size_t written = 0;
quint64 seed = 0;
qint64 number = 0;
int loop = 0;
std::atomic<int> unexpected = 0;

// Warnings that are not the library's fault.
bool isHarmless(const QByteArray &message)
{
    static const char *const starts[] = {
        // The offscreen platform's own.
        "This plugin does not support ",
        "Unimplemented code.",
        // A cancelled name dialog goes on with the empty name.
        "QDir::mkdir: Empty or null file name",
        // A folder without permissions, and a spoilt settings file.
        "inotify_add_watch(",
        "QVariant::load: unknown user type",
        // A click beside a pop-up, on the slider that floats below the spin box.
        "requestActivate() called for ",
    };
    for (const char *start : starts) {
        if (message.startsWith(start))
            return true;
    }
    return false;
}

void put(const char *text)
{
    if (write(STDERR_FILENO, text, strlen(text)) < 0)
        _exit(3);
}

void report()
{
    put("monkey: its last events:\n");
    const size_t first = written > Lines ? written - Lines : 0;
    for (size_t line = first; line < written; ++line) {
        put(trail[line % Lines]);
        put("\n");
    }
}

void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    const QByteArray message = text.toUtf8();
    if (type == QtDebugMsg || type == QtInfoMsg || isHarmless(message))
        return;
    if (++unexpected <= MostShownWarnings)
        fprintf(stderr, "monkey: seed %llu, event %lld: unexpected warning: %s\n",
                static_cast<unsigned long long>(seed), static_cast<long long>(number),
                message.constData());
    if (unexpected == 1)
        report();
    if (type == QtFatalMsg)
        std::abort();
}

void reportCrash(int signal)
{
    report();
    std::signal(signal, SIG_DFL);
    raise(signal);
}

void reportHang(int)
{
    put("monkey: hangs\n");
    report();
    std::signal(SIGABRT, SIG_DFL);
    std::abort(); // for the stack that a debugger finds
}

} // namespace

void Trail::start(quint64 seed)
{
    ::seed = seed;
    qInstallMessageHandler(handleMessage);
    std::signal(SIGALRM, reportHang);
    std::signal(SIGABRT, reportCrash);
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(report);
    } else {
        std::signal(SIGSEGV, reportCrash);
        std::signal(SIGBUS, reportCrash);
        std::signal(SIGFPE, reportCrash);
    }
}

void Trail::begin(qint64 number, int loop)
{
    ::number = number;
    ::loop = loop;
    alarm(Patience);
}

void Trail::note(const QByteArray &what)
{
    snprintf(trail[written % Lines], LineLength, "  seed %llu, event %lld, loop %d: %s",
             static_cast<unsigned long long>(seed), static_cast<long long>(number), loop,
             what.constData());
    ++written;
}

void Trail::end()
{
    alarm(0);
}

int Trail::warnings()
{
    return unexpected;
}
