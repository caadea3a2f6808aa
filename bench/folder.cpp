#include "bench/folder.h"

#include "bench/measure.h"

#include <fstream>
#include <random>
#include <system_error>

namespace ov::bench
{

Folder::Folder()
    : m_path(std::filesystem::temp_directory_path() / ("ov-bench-" + std::to_string(std::random_device{}())))
{
    Require(std::filesystem::create_directory(m_path), "cannot make a temporary folder");
}

Folder::~Folder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

void WriteBytes(const std::filesystem::path& file, const std::string& bytes, bool withGroup)
{
    std::ofstream out(file, std::ios::binary);
    if (withGroup)
        out << "[bench]\r\n";
    out << bytes << std::flush;
    Require(static_cast<bool>(out), "cannot write the file");
}

} // namespace ov::bench
