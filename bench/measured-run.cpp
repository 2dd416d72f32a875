// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT

// Runs a command and prints what it cost: "wall-µs cpu-µs peak-KiB". A program of its own because
// the system counts the memory of whoever starts a process into that process's peak: this one is
// small.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

long long microseconds(const timeval& time)
{
    return time.tv_sec * 1'000'000LL + time.tv_usec;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: measured-run COMMAND [ARGUMENT...]\n", stderr);
        return 64;
    }
    const auto begin = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[1], argv + 1);
        std::perror(argv[1]);
        _exit(127);
    }
    int status = 0;
    rusage used {};
    if (child < 0 || wait4(child, &status, 0, &used) != child) {
        std::perror("measured-run");
        return 125;
    }
    const auto wall = std::chrono::duration_cast<std::chrono::microseconds>(
        std::chrono::steady_clock::now() - begin);
    std::printf("%lld %lld %ld\n", static_cast<long long>(wall.count()),
        microseconds(used.ru_utime) + microseconds(used.ru_stime), used.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
