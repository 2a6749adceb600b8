#include "support/peer_script.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <unistd.h>

namespace korvel::bench
{

cells_file::cells_file(const std::string& name, std::span<const double> cells)
    : path_(std::filesystem::temp_directory_path() / (name + "." + std::to_string(getpid())))
{
    std::ofstream file(path_, std::ios::binary);
    file.write(reinterpret_cast<const char*>(cells.data()), static_cast<std::streamsize>(cells.size_bytes()));
    if (!file.flush()) {
        throw std::runtime_error("cannot write " + path());
    }
}

cells_file::~cells_file()
{
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

double secondsOf(const std::string& command)
{
    FILE* const answer = popen(command.c_str(), "r");
    if (answer == nullptr) {
        throw std::runtime_error("cannot run " + command);
    }
    double seconds = 0.0;
    const bool answered = std::fscanf(answer, "%lf", &seconds) == 1;
    while (std::fgetc(answer) != EOF) {
        // Read to the end: a script whose output is closed early would fail.
    }
    if (pclose(answer) != 0 || !answered) {
        throw std::runtime_error("no time from " + command);
    }
    return seconds;
}

std::string rScript(const std::string& name)
{
    return "Rscript --vanilla " KORVEL_BENCH_PEERS "/" + name;
}

std::string pythonScript(const std::string& name)
{
    return "/usr/bin/python3 " KORVEL_BENCH_PEERS "/" + name;
}

std::string quoted(const std::string& argument)
{
    return "'" + argument + "'";
}

} // namespace korvel::bench
