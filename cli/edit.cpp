#include "cli/edit.h"

#include "cli/difference.h"
#include "cli/edit_messages.h"
#include "cli/file_output.h"
#include "cli/options.h"
#include "cli/output.h"

namespace ov::cli
{

void FileEdit::Declare(Options& options)
{
    options.Operand("FILE", m_path, "The configuration file");
    options.Flag("--dry-run", m_dryRun, "Print the difference instead of writing the file");
    m_encoding.Declare(options);
}

ExitCode FileEdit::Run(Output& output, const std::function<EditResult(const EditedFile&)>& edit) const
{
    if (!MayWriteTo(m_path, output))
        return ExitCode::Failed;
    const auto file = InputReader(m_encoding, output).Read(m_path);
    if (!file)
        return ExitCode::Failed;
    const EditResult result = edit({file->bytes, m_encoding.Given()});
    for (const RefusedEdit& refused : result.refused)
        output.Problem(m_path + ": " + RefusalText(refused));
    if (!result.refused.empty())
        return ExitCode::Found;
    for (const Text& name : result.commentsLeft)
        output.Remark(m_path + ": The comment above " + Utf8FromText(name) +
                      " is not the dialog's; it stays.");
    if (m_dryRun) {
        PrintUnifiedDiff(output, file->bytes, result.bytes, m_path);
        return ExitCode::Done;
    }
    return result.bytes == file->bytes ? ExitCode::Done
                                       : WriteFile(m_path, file->bytes, result.bytes, output);
}

Text TextOfArgument(const std::string& argument)
{
    Text text = TextFromUtf8(argument);
    if (Utf8FromText(text) != argument)
        throw Usage("'" + Utf8FromText(text) + "' is not valid UTF-8");
    return text;
}

} // namespace ov::cli
