#pragma once

#include "config/core/file_port.h"

#include <algorithm>
#include <functional>
#include <map>
#include <new>

namespace ov::test
{

/// The fault of one operation.
enum class StepFault {
    None,
    Fails,       ///< It fails; a write may write some bytes.
    FailsDone,   ///< It succeeds but reports a failure.
    OutOfMemory, ///< It throws std::bad_alloc; a write may write some bytes.
    EndsBefore,  ///< The process ends before it.
    EndsWithin,  ///< The process ends during it; a write may write some bytes.
    EndsAfter,   ///< The process ends after it.
};

/// Forwards to another port, numbers the operations from 1, and lets chosen ones fail or end the
/// process.
class StepFilePort final : public FilePort
{
  public:
    explicit StepFilePort(FilePort& files) : m_files(files) {}

    std::map<int, StepFault> faults;         ///< By the number of the operation.
    std::size_t partOfWrite = 0;             ///< The number of bytes that an incomplete write writes.
    std::function<void()> end;               ///< Ends the process, or throws to simulate that.
    std::function<void()> afterEach = [] {}; ///< Checks the files after each operation.
    int steps = 0;                           ///< The number of operations so far.
    bool renamed = false;                    ///< A file was renamed.
    bool ended = false;                      ///< The process has ended.
    bool unfinishedWrite = false;            ///< The last write was incomplete.
    int failedReads = 0;                     ///< The number of failures to open for reading or to read.

    FileKind Kind(const Text& path) override
    {
        return Step([&] { return m_files.Kind(path); }, FileKind::Unknown);
    }
    Text LinkTarget(const Text& path) override
    {
        return Step([&] { return m_files.LinkTarget(path); }, Text());
    }
    bool IsSameFile(const Text& first, const Text& second) override
    {
        return Step([&] { return m_files.IsSameFile(first, second); }, false);
    }
    FileResult OpenForReading(const Text& path, FileHandle& file) override
    {
        return ReadingStep([&] { return m_files.OpenForReading(path, file); });
    }
    FileResult Read(FileHandle file, std::span<char> buffer, std::size_t& count) override
    {
        return ReadingStep([&] { return m_files.Read(file, buffer, count); });
    }
    FileResult Create(const Text& path, CreateMode mode, FileHandle& file) override
    {
        return Step([&] { return m_files.Create(path, mode, file); });
    }
    FileResult Reserve(FileHandle file, std::size_t size) override
    {
        return Step([&] { return m_files.Reserve(file, size); });
    }
    FileResult Write(FileHandle file, std::string_view bytes) override
    {
        const auto whole = [&] {
            unfinishedWrite = false;
            return m_files.Write(file, bytes);
        };
        const auto part = [&] {
            unfinishedWrite = true;
            m_files.Write(file, bytes.substr(0, std::min(partOfWrite, bytes.size())));
        };
        return Step(whole, Failure(), part);
    }
    FileResult Flush(FileHandle file) override
    {
        return Step([&] { return m_files.Flush(file); });
    }
    // A failing close closes the file nevertheless.
    FileResult Close(FileHandle file) override
    {
        return Step([&] { return m_files.Close(file); }, Failure(), [&] { m_files.Close(file); });
    }
    FileResult Rename(const Text& from, const Text& to) override
    {
        return Step([&] {
            FileResult renaming = m_files.Rename(from, to);
            renamed = renamed || renaming.ok;
            return renaming;
        });
    }
    FileResult Remove(const Text& path) override
    {
        return Step([&] { return m_files.Remove(path); });
    }

  private:
    static FileResult Failure() { return {false, u"The injected fault."}; }

    template <class Operation>
    FileResult ReadingStep(Operation operation)
    {
        ++failedReads;
        FileResult result = Step(operation);
        failedReads -= result.ok ? 1 : 0;
        return result;
    }

    template <class Operation>
    FileResult Step(Operation operation)
    {
        return Step(operation, Failure());
    }

    template <class Operation, class Result>
    Result Step(Operation operation, Result failure)
    {
        return Step(operation, failure, [] {});
    }

    template <class Operation, class Result, class Part>
    Result Step(Operation operation, Result failure, Part part)
    {
        if (ended)
            end();
        ++steps;
        const auto found = faults.find(steps);
        const StepFault fault = found == faults.end() ? StepFault::None : found->second;
        switch (fault) {
        case StepFault::EndsBefore:
            End();
            break;
        case StepFault::EndsWithin:
            part();
            End();
            break;
        case StepFault::Fails:
            part();
            return Seen(failure);
        case StepFault::OutOfMemory:
            part();
            Seen(failure);
            throw std::bad_alloc();
        default:
            break;
        }
        Result result = operation();
        if (fault == StepFault::EndsAfter)
            End();
        return Seen(fault == StepFault::FailsDone ? failure : result);
    }

    template <class Result>
    Result Seen(Result result)
    {
        afterEach();
        return result;
    }

    void End()
    {
        ended = true;
        end();
    }

    FilePort& m_files;
};

} // namespace ov::test
