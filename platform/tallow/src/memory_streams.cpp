// SPDX-License-Identifier: Apache-2.0
#include "tallow/memory_streams.h"

#include <utility>

iMemoryInStream::iMemoryInStream(std::string bytes)
    : iInStream(std::make_unique<std::stringbuf>(std::move(bytes), std::ios::in)) {}

iMemoryInStream::iMemoryInStream(const char* bytes, std::size_t size)
    : iMemoryInStream(size > 0 ? std::string(bytes, size) : std::string()) {}

iMemoryInStream::~iMemoryInStream() = default;

iMemoryOutStream::iMemoryOutStream()
    : iMemoryOutStream(std::make_unique<std::stringbuf>(std::ios::out).release()) {}

iMemoryOutStream::iMemoryOutStream(std::stringbuf* memory)
    : iOutStream(std::unique_ptr<std::streambuf>(memory)), memory_(memory) {}

iMemoryOutStream::~iMemoryOutStream() = default;

std::string_view iMemoryOutStream::bytes() const {
  return memory_->view();
}

std::string iMemoryOutStream::takeBytes() {
  return std::move(*memory_).str();
}
