#include "process/EndSignals.h"

#include <cerrno>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace process {

namespace {

constexpr int heard[] = {SIGTERM, SIGINT, SIGHUP};

int ends[2] = {-1, -1}; // of the pipe from the handler to the event loop

volatile std::sig_atomic_t come = 0;

// Nothing more may be done in a handler.
void tell(int)
{
    come = 1;
    const int error = errno;
    static_cast<void>(::write(ends[1], "", 1) == 1);
    errno = error;
}

int openPipe()
{
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe can be opened");
    return ends[0];
}

bool isIgnored(int signal)
{
    struct sigaction present = {};
    return ::sigaction(signal, nullptr, &present) == 0 && present.sa_handler == SIG_IGN;
}

void setHandler(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

} // namespace

void guardStandardStreams()
{
    std::signal(SIGPIPE, SIG_IGN);
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        // The lowest free number is given out, which is this one. It is for reading only: writing to it fails.
        if (::fcntl(stream, F_GETFD) == -1)
            static_cast<void>(::open("/dev/null", O_RDONLY) == stream);
    }
}

EndSignals::EndSignals()
    : notifier(openPipe(), QSocketNotifier::Read)
{
    come = 0;
    connect(&notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(ends[0], &byte, 1) == 1)
            ;
        emit asked();
    });
    for (const int signal : heard) {
        if (!isIgnored(signal))
            setHandler(signal, &tell);
    }
}

bool EndSignals::haveCome() const
{
    return come != 0;
}

EndSignals::~EndSignals()
{
    for (const int signal : heard) {
        if (!isIgnored(signal))
            setHandler(signal, SIG_DFL);
    }
    notifier.setEnabled(false);
    for (int &end : ends)
        ::close(std::exchange(end, -1));
}

} // namespace process
