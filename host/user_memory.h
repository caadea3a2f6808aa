#pragma once

#include "launch/core/launch_windows.h"

/// What the launcher remembers, in the folder Orthoval\Preferences of the user's application data.
/// Without the environment variable APPDATA nothing is remembered.
class UserMemory final : public ov::LaunchMemory
{
  public:
    UserMemory();

    std::string Load(std::string_view name) override;
    void Store(std::string_view name, const std::string& bytes) override;

  private:
    ov::Text PathOf(std::string_view name) const;

    ov::Text m_folder; ///< Empty if there is none.
};
