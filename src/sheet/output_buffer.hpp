// The one buffer that every writer of a drawing fills: numbers and texts go in, chunks of about
// 64 KB come out, so that a large drawing is never held twice.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include "numerics/numbers.hpp"
#include "numerics/sink.hpp"

namespace dialwright {

class OutputBuffer {
 public:
  explicit OutputBuffer(Sink sink) : sink_(std::move(sink)) {}

  // Hands over what is still in the buffer; the last call of every writer.
  void flush() {
    if (at_ != begin()) sink_({begin(), used()});
    at_ = begin();
  }

  OutputBuffer& operator<<(char c) {
    need(1);
    *at_++ = c;
    return *this;
  }

  OutputBuffer& operator<<(std::string_view text) {
    if (text.size() > kChunk) {
      flush();
      sink_(text);
      return *this;
    }
    need(text.size());
    at_ = std::copy(text.begin(), text.end(), at_);
    return *this;
  }

  // Literals have a known length: their copy is a move or two.
  template <std::size_t N>
  OutputBuffer& operator<<(const char (&literal)[N]) {
    need(N);
    std::memcpy(at_, literal, N);
    at_ += N - 1;
    return *this;
  }

  OutputBuffer& operator<<(std::int32_t number) {
    need(kNumber);
    at_ = std::to_chars(at_, at_ + kNumber, number).ptr;
    return *this;
  }

  // The shortest form that reads back to the same double.
  OutputBuffer& shortest(double number) {
    need(kNumber);
    at_ = std::to_chars(at_, at_ + kNumber, number).ptr;
    return *this;
  }

  // Up to 15 significant digits, as textOf gives them.
  OutputBuffer& significant(double number) {
    need(kNumber);
    at_ = writeNumber(at_, number);
    return *this;
  }

  // A number of thousandths as a decimal: 1500 is "1.5".
  OutputBuffer& thousandths(std::int64_t number) {
    need(kNumber);
    if (number < 0) *at_++ = '-';
    const std::uint64_t size =
        number < 0 ? 0 - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
    at_ = std::to_chars(at_, at_ + kNumber, size / 1000).ptr;
    if (const auto rest = static_cast<unsigned>(size % 1000); rest != 0) decimals(rest);
    return *this;
  }

 private:
  static constexpr std::size_t kChunk = std::size_t{64} * 1024;
  static constexpr std::size_t kNumber = kNumberLength + 8;

  char* begin() { return bytes_.get(); }
  std::size_t used() { return static_cast<std::size_t>(at_ - begin()); }
  void need(std::size_t bytes) {
    if (used() + bytes > kChunk) [[unlikely]]
      flush();
  }

  void decimals(unsigned thousandth) {
    *at_++ = '.';
    *at_++ = static_cast<char>('0' + thousandth / 100);
    if (thousandth % 100 == 0) return;
    *at_++ = static_cast<char>('0' + thousandth / 10 % 10);
    if (thousandth % 10 == 0) return;
    *at_++ = static_cast<char>('0' + thousandth % 10);
  }

  Sink sink_;
  std::unique_ptr<char[]> bytes_ = std::make_unique<char[]>(kChunk);
  char* at_ = bytes_.get();
};

}  // namespace dialwright
