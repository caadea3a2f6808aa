#pragma once

namespace ov
{

/// The program's version, such as "1.0.0".
const char* Version();

/// The version and the git revision of the sources, such as "1.0.0 (0123456789ab)". "-dirty" follows
/// the revision of sources that have changes. The version alone where no revision is known.
const char* VersionWithRevision();

} // namespace ov
