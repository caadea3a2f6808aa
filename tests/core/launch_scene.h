#pragma once

#include "config/core/local_time.h"
#include "launch/core/file_ports.h"
#include "tests/core/memory_folder_port.h"
#include "tests/save/step_file_port.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace ov::test
{

/// Thrown in place of the end of a process.
struct ProcessEnded {
};

/// A file system in memory whose operations fail one by one.
class LaunchScene
{
  public:
    LaunchScene()
    {
        steps.end = [] { throw ProcessEnded(); };
    }
    LaunchScene(const LaunchScene&) = delete;
    LaunchScene& operator=(const LaunchScene&) = delete;

    /// True if a file with this content exists, under any name.
    bool Has(const std::string& content) const
    {
        return std::ranges::any_of(memory.contents, [&](const auto& file) { return file.second == content; });
    }

    /// The names of all files that end in this text.
    std::vector<Text> EndingIn(TextView end) const
    {
        std::vector<Text> names;
        for (const auto& [name, content] : memory.contents) {
            if (name.ends_with(end))
                names.push_back(name);
        }
        return names;
    }

    MemoryFilePort memory;
    StepFilePort steps{memory};
    MemoryFolderPort folders{memory};
    FilePorts ports{steps, folders};
};

/// Runs an action with every fault at every operation, one at a time. `arrange` prepares each run,
/// `invariant` holds after every operation and at the end of the process, `check` after an action that
/// returned normally; it learns whether there was no fault at all.
template <class Action>
void RunWithEachFault(
    const std::function<void(LaunchScene&)>& arrange, Action action,
    const std::function<void(const LaunchScene&)>& invariant,
    const std::function<void(LaunchScene&, const decltype(action(std::declval<LaunchScene&>()))&, bool)>&
        check)
{
    for (const StepFault fault : {StepFault::Fails, StepFault::FailsDone, StepFault::OutOfMemory,
                                  StepFault::EndsBefore, StepFault::EndsWithin, StepFault::EndsAfter}) {
        bool reached = true;
        for (int step = 1; reached; ++step) {
            SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at operation " +
                         std::to_string(step));
            LaunchScene scene;
            arrange(scene);
            scene.steps.partOfWrite = 3;
            scene.steps.faults = {{step, fault}};
            scene.steps.afterEach = [&] { invariant(scene); };
            try {
                const auto result = action(scene);
                reached = scene.steps.steps >= step;
                // A save continues without effect after the end of its process.
                if (!scene.steps.ended) {
                    check(scene, result, !reached);
                    // A file whose opening is reported as a failure cannot be closed.
                    EXPECT_TRUE(scene.memory.openFiles == 0 || fault == StepFault::FailsDone);
                }
            } catch (const ProcessEnded&) {
            } catch (const std::bad_alloc&) {
                EXPECT_EQ(fault, StepFault::OutOfMemory);
                EXPECT_EQ(scene.memory.openFiles, 0);
            }
            invariant(scene);
            if (testing::Test::HasFailure())
                return;
        }
    }
}

} // namespace ov::test
