/**
 * @file
 * Peers that run outside C++: a script gets the same cells from a file and answers with the seconds that its
 * work took, reading not counted.
 */
#ifndef KORVEL_BENCH_PEER_SCRIPT_H
#define KORVEL_BENCH_PEER_SCRIPT_H

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

namespace korvel::bench
{

/** A file of numbers as they lie in memory, removed with this object. */
class cells_file
{
public:
    cells_file(const std::string& name, std::span<const double> cells);
    cells_file(const cells_file&) = delete;
    cells_file& operator=(const cells_file&) = delete;
    ~cells_file();

    [[nodiscard]] std::string path() const { return path_.string(); }

private:
    std::filesystem::path path_;
};

/**
 * Runs a command and reads the number of seconds that it prints.
 * @throws std::runtime_error when it fails or prints something else
 */
double secondsOf(const std::string& command);

/** The command of the R script `name` in the folder of peers, to which arguments are added. */
std::string rScript(const std::string& name);

/** The same for Python. */
std::string pythonScript(const std::string& name);

/** An argument that the shell takes as it stands. */
std::string quoted(const std::string& argument);

} // namespace korvel::bench

#endif
