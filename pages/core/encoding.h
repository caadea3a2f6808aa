#pragma once

#include "base/text.h"

#include <span>

namespace ov
{

/// Who decides whether a check is made. The variable says "1" for always, "0"
/// for never, "-1" for the user.
///
/// As the index of a list Always, Never, User Defined. What is neither 1 nor 0,
/// nothing included, is the user's decision.
int AlwaysNeverUserIndex(TextView stored);
Text AlwaysNeverUserText(int index);

/// As the index of a radio group Never, Always, User Defined. Here an empty
/// text means never.
int NeverAlwaysUserIndex(TextView stored);
Text NeverAlwaysUserText(int index);

/// A choice and whether the user may change it, kept in one number: the index
/// plus one, negative when the user may not.
struct LockableChoice {
    int index; ///< -1 for none
    bool userDefinable;

    friend bool operator==(const LockableChoice&, const LockableChoice&) = default;
};

/// `fallback` is the choice, free for the user, of a text that gives 0.
LockableChoice ReadLockableChoice(TextView stored, int fallback);
/// No choice gives "0".
Text WriteLockableChoice(LockableChoice choice);

/// Which button of a group "None", a preset each, "User defined" fits the text:
/// 0 for an empty one, else the first preset that equals it whatever the case,
/// counted from 1, else the last button.
int PresetChoice(TextView text, std::span<const char16_t* const> presets);

/// What the choice makes of the text: nothing, the preset, or what it was.
void ApplyPreset(int choice, std::span<const char16_t* const> presets, Text& text);

/// Whether the built-in scales are offered beside, or instead of, an office's own.
struct ScaleSource {
    bool builtIn;
    bool others; ///< the user may take a scale that is listed nowhere

    friend bool operator==(const ScaleSource&, const ScaleSource&) = default;
};

/// Takes "0", "1" or "2", white space around it ignored, into the source. "0"
/// is the office's own; any other text is the built-in ones and any but "1"
/// lets the user take others too. Nothing to read changes nothing.
void ReadScaleSource(TextView stored, ScaleSource& source);
Text WriteScaleSource(ScaleSource source);

/// Takes white space and square brackets off a list of scales. True when it
/// had a bracket: the user may take other scales.
bool TakeScaleBrackets(Text& list);
Text PutScaleBrackets(TextView list);

inline constexpr double kLowestScaleFactor = 0.75;
inline constexpr double kHighestScaleFactor = 1.25;

/// A scale factor, held between its limits: 1 when there is none, the limit
/// when it is beyond one, both with five decimals; as typed otherwise. A text
/// that begins with no number counts as 0.
Text ClampedScaleFactor(TextView typed);

} // namespace ov
