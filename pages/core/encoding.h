#pragma once

#include "base/text.h"

#include <span>

namespace ov
{

/// Who decides whether a check is made. The variable is "1" for always, "0"
/// for never, "-1" for the user.
///
/// Returns the index of a list with Always, Never, User Defined. Any value other
/// than 1 and 0, including an empty one, is User Defined.
int AlwaysNeverUserIndex(TextView stored);
Text AlwaysNeverUserText(int index);

/// Returns the index of a radio group with Never, Always, User Defined. Here an
/// empty text means Never.
int NeverAlwaysUserIndex(TextView stored);
Text NeverAlwaysUserText(int index);

/// A choice, and whether the user may change it, stored as one number: the index
/// plus one, negative if the user may not change it.
struct LockableChoice {
    int index; ///< -1 for none
    bool userDefinable;

    friend bool operator==(const LockableChoice&, const LockableChoice&) = default;
};

/// A text that reads as 0 gives the choice `fallback`, which the user may change.
LockableChoice ReadLockableChoice(TextView stored, int fallback);
/// No choice is written as "0".
Text WriteLockableChoice(LockableChoice choice);

/// The button of a group with "None", one button per preset, and "User defined":
/// 0 for an empty text, else the first preset that equals it ignoring case,
/// counted from 1, else the last button.
int PresetChoice(TextView text, std::span<const char16_t* const> presets);

/// Sets the text for a choice: empty, the preset, or unchanged.
void ApplyPreset(int choice, std::span<const char16_t* const> presets, Text& text);

/// Whether the built-in scales are offered in addition to the office's, or instead of them.
struct ScaleSource {
    bool builtIn;
    bool others; ///< the user may use scales that are not listed

    friend bool operator==(const ScaleSource&, const ScaleSource&) = default;
};

/// Applies "0", "1" or "2", with optional white space around it, to the source.
/// "0" means the office's own scales; any other text means the built-in ones. All
/// texts but "1" also allow other scales. An empty text leaves the source unchanged.
void ReadScaleSource(TextView stored, ScaleSource& source);
Text WriteScaleSource(ScaleSource source);

/// Removes white space and square brackets from a list of scales. True if it had
/// a bracket: the user may use other scales.
bool TakeScaleBrackets(Text& list);
Text PutScaleBrackets(TextView list);

inline constexpr double kLowestScaleFactor = 0.75;
inline constexpr double kHighestScaleFactor = 1.25;

/// A scale factor clamped to its limits: 1 if there is none, and the nearest limit
/// if it is out of range, both with five decimals; otherwise the text as typed. A
/// text that does not begin with a number counts as 0.
Text ClampedScaleFactor(TextView typed);

} // namespace ov
