#include "lzw.h"

#include <array>
#include <cassert>
#include <memory>

namespace imageexport {
namespace {

constexpr int kMaxCodeSize = 12;
constexpr int kTableLimit = 1 << kMaxCodeSize;  // 4096 codes

class BitWriter {
 public:
  explicit BitWriter(std::vector<std::uint8_t>& out) : out_(out) {}
  void Put(int code, int size) {
    buffer_ |= static_cast<std::uint32_t>(code) << bits_;
    bits_ += size;
    while (bits_ >= 8) {
      out_.push_back(static_cast<std::uint8_t>(buffer_ & 0xFF));
      buffer_ >>= 8;
      bits_ -= 8;
    }
  }
  void Flush() {
    if (bits_ > 0) out_.push_back(static_cast<std::uint8_t>(buffer_ & 0xFF));
    buffer_ = 0;
    bits_ = 0;
  }

 private:
  std::vector<std::uint8_t>& out_;
  std::uint32_t buffer_ = 0;
  int bits_ = 0;
};

// The strings of the code table as (prefix code, next index) -> code, open addressing at a
// load of at most one half, so a reset after each clear code is cheap.
class CodeTable {
 public:
  void Clear() { keys_.fill(kEmpty); }
  int Find(int prefix, int index) const {
    const std::uint32_t key = KeyOf(prefix, index);
    for (std::uint32_t slot = Hash(key);; slot = (slot + 1) & kMask) {
      if (keys_[slot] == kEmpty) return -1;
      if (keys_[slot] == key) return codes_[slot];
    }
  }
  void Insert(int prefix, int index, int code) {
    const std::uint32_t key = KeyOf(prefix, index);
    std::uint32_t slot = Hash(key);
    while (keys_[slot] != kEmpty) slot = (slot + 1) & kMask;
    keys_[slot] = key;
    codes_[slot] = static_cast<std::uint16_t>(code);
  }

 private:
  static constexpr std::uint32_t kSlots = 2 * kTableLimit;
  static constexpr std::uint32_t kMask = kSlots - 1;
  static constexpr std::uint32_t kEmpty = 0xFFFFFFFF;
  static std::uint32_t KeyOf(int prefix, int index) { return static_cast<std::uint32_t>(prefix << 8 | index); }
  static std::uint32_t Hash(std::uint32_t key) { return (key * 2654435761U) >> 19 & kMask; }
  std::array<std::uint32_t, kSlots> keys_{};
  std::array<std::uint16_t, kSlots> codes_{};
};

class Encoder {
 public:
  Encoder(std::vector<std::uint8_t>& out, int minCodeSize)
      : bits_(out),
        minCodeSize_(minCodeSize),
        clearCode_(1 << minCodeSize),
        codeSize_(minCodeSize + 1),
        table_(std::make_unique<CodeTable>()) {
    Restart();
  }

  void Run(std::span<const std::uint8_t> indices) {
    int prefix = indices.front();
    for (std::size_t i = 1; i < indices.size(); ++i) {
      const int found = table_->Find(prefix, indices[i]);
      if (found >= 0) {
        prefix = found;
        continue;
      }
      bits_.Put(prefix, codeSize_);
      AddString(prefix, indices[i]);
      prefix = indices[i];
    }
    bits_.Put(prefix, codeSize_);
    // The decoder adds one more string on reading that last code and may widen the code for
    // the end mark; widen it here the same way.
    if (nextCode_ == 1 << codeSize_ && codeSize_ < kMaxCodeSize) ++codeSize_;
    bits_.Put(clearCode_ + 1, codeSize_);
    bits_.Flush();
  }

 private:
  // A clear code, written at the current width, and an empty table.
  void Restart() {
    bits_.Put(clearCode_, codeSize_);
    table_->Clear();
    codeSize_ = minCodeSize_ + 1;
    nextCode_ = clearCode_ + 2;
  }

  void AddString(int prefix, int index) {
    if (nextCode_ == kTableLimit) {
      Restart();
      return;
    }
    if (nextCode_ == 1 << codeSize_) ++codeSize_;
    table_->Insert(prefix, index, nextCode_++);
  }

  BitWriter bits_;
  int minCodeSize_;
  int clearCode_;
  int codeSize_;
  int nextCode_ = 0;
  std::unique_ptr<CodeTable> table_;
};

}  // namespace

std::vector<std::uint8_t> LzwEncode(std::span<const std::uint8_t> indices, int minCodeSize) {
  assert(minCodeSize >= 2 && minCodeSize <= 8 && !indices.empty());
  std::vector<std::uint8_t> out;
  out.reserve(indices.size() / 4 + 16);
  Encoder(out, minCodeSize).Run(indices);
  return out;
}

}  // namespace imageexport
