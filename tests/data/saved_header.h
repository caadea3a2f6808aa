/// The lines with which Save begins each file, down to the one that names the date and the user.
#pragma once

namespace ov::test
{

constexpr char kSavedHeaderBegin[] =
    "#\n"
    "# Orthoval Administration Configuration File.\n"
    "#\n"
    "# NOTE: This is a standard MicroStation configuration file read in at the\n"
    "#       application level. Variables can be copied from here into the User\n"
    "#       or Project configuration file to override them at various workspace\n"
    "#       levels. See the Orthoval Administrator's Guide for more\n"
    "#       information. Note also that commenting out a variable by preceding\n"
    "#       it with a '#' symbol will require a restart of MicroStation to\n"
    "#       purge it from memory.\n"
    "#\n";

} // namespace ov::test
