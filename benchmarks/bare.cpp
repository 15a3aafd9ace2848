// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Puts "new_" before the name of every file of a folder by the system call alone, and prints the seconds that
// the calls took: what no program can be faster than. Usage: orvanto_benchmark_bare folder

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: orvanto_benchmark_bare folder\n");
        return 2;
    }
    std::vector<std::pair<std::string, std::string>> names;
    for (const auto &entry : std::filesystem::directory_iterator(std::filesystem::absolute(argv[1]))) {
        const std::filesystem::path &path = entry.path();
        names.emplace_back(path.string(), path.parent_path() / ("new_" + path.filename().string()));
    }
    const auto begin = std::chrono::steady_clock::now();
    int failed = 0;
    for (const auto &[from, to] : names)
        failed += renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) != 0;
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    std::printf("%zu %.6f\n", names.size(), seconds.count());
    return failed == 0 ? 0 : 1;
}
