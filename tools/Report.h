// SPDX-License-Identifier: MIT
#pragma once

#include "Readings.h"

#include <cstdio>
#include <string>

namespace check {

/// Writes what was read to a stream.
class Report {
  public:
    virtual ~Report() = default;
    /// Writes one file's reading.
    virtual void Add(const std::string& file, const Reading& reading) = 0;
    /// Writes what comes after the last file.
    virtual void End() {}

  protected:
    explicit Report(std::FILE* out) : out_(out) {}
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    /// Writes a piece once it is large enough, so that the report of a large file is not held
    /// twice.
    void WriteFrom(std::string& piece, std::size_t least = 1 << 16) {
        if (piece.size() < least) return;
        std::fwrite(piece.data(), 1, piece.size(), out_);
        piece.clear();
    }

  private:
    std::FILE* out_;
};

/// Tables for people, and a line for each remark: FILE:record:field: remark (character N).
class TextReport final : public Report {
  public:
    /// @param tables  false to write the remarks alone
    TextReport(std::FILE* out, bool tables) : Report(out), tables_(tables) {}
    void Add(const std::string& file, const Reading& reading) override;

  private:
    bool tables_;
};

/// An array with one object for each file.
class JsonReport final : public Report {
  public:
    explicit JsonReport(std::FILE* out) : Report(out) {}
    void Add(const std::string& file, const Reading& reading) override;
    void End() override;

  private:
    bool first_ = true;
};

}  // namespace check
