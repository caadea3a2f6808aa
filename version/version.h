#pragma once

namespace ov
{

/// The program's version, such as "1.0.0".
const char* Version();

/// The version and the git revision of the sources, such as "1.0.0 (0123456789ab)", with "-dirty" after
/// the revision if the sources have changes. The version alone if the revision is unknown.
const char* VersionWithRevision();

} // namespace ov
