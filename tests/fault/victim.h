// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <csignal>
#include <vector>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

/// The program that is killed.
class Victim final
{
public:
    /// Traced, it stops before every system call, and after it, once it has begun.
    Victim(const QStringList &arguments, bool traced)
    {
        const QByteArray program =
            QFile::encodeName(QCoreApplication::applicationDirPath() + QStringLiteral("/journalvictim"));
        QByteArrayList texts = {program};
        for (const QString &argument : arguments)
            texts.append(QFile::encodeName(argument));
        std::vector<char *> words;
        for (QByteArray &text : texts)
            words.push_back(text.data());
        words.push_back(nullptr);
        if (traced)
            qputenv("ORVANTO_VICTIM_STOPS", "1");
        else
            qunsetenv("ORVANTO_VICTIM_STOPS");
        process = fork();
        if (process == 0) {
            if (traced)
                ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            execv(program.constData(), words.data());
            _exit(127);
        }
        if (traced)
            attach();
    }
    ~Victim() { kill(); }
    Q_DISABLE_COPY_MOVE(Victim)

    [[nodiscard]] bool isTraced() const { return attached; }
    /// To just before or behind the next system call; false when the process has ended.
    bool step()
    {
        if (ended || ptrace(PTRACE_SYSCALL, process, nullptr, nullptr) != 0)
            return false;
        int status = 0;
        ended = waitpid(process, &status, 0) != process || !WIFSTOPPED(status);
        exitCode = ended && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        return !ended;
    }
    void kill()
    {
        if (!ended)
            ::kill(process, SIGKILL);
        waitForEnd();
    }
    void waitForEnd()
    {
        int status = 0;
        while (!ended && waitpid(process, &status, 0) == process) {
            ended = WIFSIGNALED(status) || WIFEXITED(status);
            exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        }
        ended = true;
    }
    int exitCode = -1;

private:
    void attach()
    {
        int status = 0;
        // The first stop is the exec, the second its own.
        const bool started = waitpid(process, &status, 0) == process && WIFSTOPPED(status) &&
                             ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_EXITKILL) == 0 &&
                             ptrace(PTRACE_CONT, process, nullptr, nullptr) == 0;
        attached = started && waitpid(process, &status, 0) == process && WIFSTOPPED(status) &&
                   WSTOPSIG(status) == SIGSTOP;
    }

    pid_t process = -1;
    bool attached = false;
    bool ended = false;
};
