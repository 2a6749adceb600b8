/**
 * @file
 * A line that tells a person at a terminal what is going on.
 */
#ifndef KORVEL_EXAMPLES_PROGRESS_H
#define KORVEL_EXAMPLES_PROGRESS_H

#include <string>

namespace report
{

/** Shows one line on the error stream, written over again and again, if that is a terminal; else nothing. */
class progress
{
public:
    explicit progress(std::string about);
    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;
    ~progress();

    /** Shows what is being done, and how much of it is done, from 0 to 1, when that is known. */
    void show(const std::string& what, double share = -1.0);

private:
    std::string about_;
    std::string shown_;
    bool isTerminal_;
};

} // namespace report

#endif
