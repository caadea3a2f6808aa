#pragma once

#include "config/core/save.h"

#include <functional>
#include <vector>

namespace ov::test
{

/// A question that a save asked.
struct ReplaceQuestion {
    ReplaceReason reason;
    Text keptPath;

    bool operator==(const ReplaceQuestion&) const = default;
};

/// Records the questions and notices of a save. A question gets the prepared answer.
class TestPrompts final : public SavePrompts
{
  public:
    bool answer = true;
    std::function<void()> onQuestion = [] {}; ///< Runs while the question is open.
    std::function<void()> onNotice = [] {};   ///< Runs while the notice is open.
    std::vector<ReplaceQuestion> questions;
    std::vector<Text> notices;

    bool MayReplace(ReplaceReason reason, const Text& keptPath) override
    {
        questions.push_back({reason, keptPath});
        onQuestion();
        return answer;
    }

    void TellNoBackup(const Text& systemText) override
    {
        notices.push_back(systemText);
        onNotice();
    }
};

} // namespace ov::test
