#include "platform/automation/counters.h"

#include "platform/automation/ledger.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <string>

namespace korvel::automation
{

ledger& theLedger() noexcept
{
    static ledger instance;
    return instance;
}

namespace
{

struct debug_output {
    std::mutex guard;
    std::string lastLine;
};

debug_output& debugOutput()
{
    static debug_output instance;
    return instance;
}

} // namespace

} // namespace korvel::automation

using korvel::automation::debugOutput;
using korvel::automation::theLedger;

extern "C" void KorvelReadAutomationCounters(KorvelAutomationCounters* counters)
{
    auto& ledger = theLedger();
    counters->textsMade = ledger.texts.made;
    counters->textsFreed = ledger.texts.freed;
    counters->blocksMade = ledger.blocks.made;
    counters->blocksFreed = ledger.blocks.freed;
    counters->arraysMade = ledger.arrays.made;
    counters->arraysDestroyed = ledger.arrays.freed;
    counters->debugLines = ledger.debugLines;
}

extern "C" void KorvelLimitAutomationAllocations(int64_t allowed)
{
    theLedger().allowance = std::max<int64_t>(allowed, -1);
}

extern "C" void KorvelLastDebugLine(char* line, size_t size)
{
    if (size == 0) {
        return;
    }
    auto& output = debugOutput();
    const std::lock_guard lock(output.guard);
    const size_t length = std::min(size - 1, output.lastLine.size());
    std::memcpy(line, output.lastLine.data(), length);
    line[length] = '\0';
}

extern "C" void OutputDebugStringA(const char* line)
{
    auto& output = debugOutput();
    const std::lock_guard lock(output.guard);
    output.lastLine = line;
    ++theLedger().debugLines;
}
