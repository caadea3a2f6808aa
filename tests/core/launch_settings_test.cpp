// What the launcher remembers for a user, as text and back.
#include "launch/core/launch_settings.h"

#include <gtest/gtest.h>

namespace ov
{
namespace
{

TEST(LaunchSettingsTest, ReadsWhatItWrote)
{
    LaunchSettings settings;
    settings.defaults = u"P:\\Standards \u03A9\\defaults = old.cfg";
    settings.file = u"\\\\server\\share\\office.cfg";
    settings.copies = 3;
    settings.copyFolder = u"D:\\Copies # all";
    const LaunchSettings read = ParseLaunchSettings(FormatLaunchSettings(settings));
    EXPECT_EQ(settings.defaults, read.defaults);
    EXPECT_EQ(settings.file, read.file);
    EXPECT_EQ(3, read.copies);
    EXPECT_EQ(settings.copyFolder, read.copyFolder);
}

TEST(LaunchSettingsTest, NoDefaultsFileIsAnAnswerToo)
{
    LaunchSettings settings;
    EXPECT_EQ(std::nullopt, ParseLaunchSettings(FormatLaunchSettings(settings)).defaults);
    settings.defaults = u"";
    EXPECT_EQ(Text(), ParseLaunchSettings(FormatLaunchSettings(settings)).defaults);
}

TEST(LaunchSettingsTest, NothingRememberedKeepsTenCopiesBesideTheFile)
{
    const LaunchSettings settings = ParseLaunchSettings("");
    EXPECT_EQ(std::nullopt, settings.defaults);
    EXPECT_EQ(Text(), settings.file);
    EXPECT_EQ(10, settings.copies);
    EXPECT_EQ(Text(), settings.copyFolder);
}

TEST(LaunchSettingsTest, IgnoresWhatItDoesNotUnderstand)
{
    const LaunchSettings settings = ParseLaunchSettings(
        "# heading\ncopies = many\ncopies=-1\ncopies = 1000\ncolour = red\nfile\nfile = a.cfg");
    EXPECT_EQ(10, settings.copies);
    EXPECT_EQ(u"a.cfg", settings.file);
    EXPECT_EQ(0, ParseLaunchSettings("copies = 0\r\n").copies);
    EXPECT_EQ(999, ParseLaunchSettings("copies = 999").copies);
    EXPECT_EQ(10, ParseLaunchSettings("copies = 4294967297").copies);
}

} // namespace
} // namespace ov
