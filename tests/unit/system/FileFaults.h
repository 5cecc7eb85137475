#pragma once

#include "FileOperations.h"

#include <functional>
#include <memory>

// The real file operations, with something happening before single calls. Only calls that change the disk count; they
// are numbered from 1.
class FileFaults final : public Core::IO::FileOperations
{
  public:
    // Called before each call that changes the disk. What it returns, if not 0, is the result in place of the call's.
    using Before = std::function<Core::SystemError(int call)>;

    explicit FileFaults(Before before);

    // Instead of the system's replacement: what is done, and its result.
    using Replace = std::function<Core::SystemError(FileFaults&, const Core::String& target, const Core::String& side,
                                                    const Core::String& backup)>;
    void replaceBy(Replace replace) { m_replace = std::move(replace); }
    // Called in place of the waiting between attempts.
    void pauseBy(std::function<void()> pause) { m_pause = std::move(pause); }
    // Errors that pass like the system's own passing ones.
    void letPass(Core::SystemError error) { m_passing = error; }

    int calls() const noexcept { return m_calls; }
    Core::IO::FileOperations& real() noexcept { return *m_real; }

    Core::IO::FileKind kind(const Core::String& path) override;
    Core::SystemError read(const Core::String& path, std::string& content) override;
    Core::SystemError makeFolder(const Core::String& folder) override;
    Core::SystemError createSide(const Core::String& side, const Core::String& model,
                                 Core::IO::Access ofNewFile) override;
    // The half of the content is written before something happens.
    Core::SystemError write(std::string_view content) override;
    Core::SystemError flush() override;
    Core::SystemError close() override;
    Core::SystemError replace(const Core::String& target, const Core::String& side,
                              const Core::String& backup) override;
    Core::SystemError move(const Core::String& from, const Core::String& to) override;
    Core::SystemError remove(const Core::String& path) override;
    void removeOldSides(const Core::String& path) override;
    bool isNotFound(Core::SystemError error) const override;
    bool mayPass(Core::SystemError error) const override;
    void pause() override;

  private:
    std::unique_ptr<Core::IO::FileOperations> m_real = Core::IO::makeSystemFileOperations();
    Before m_before;
    Replace m_replace;
    std::function<void()> m_pause = [] {};
    Core::SystemError m_passing = 0;
    int m_calls = 0;
};
