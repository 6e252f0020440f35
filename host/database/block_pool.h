#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

namespace cvdeveloper::standalone {

// Memory of large results, kept for the next one: asking the system for fresh pages costs a tenth
// of reading a thousand rows. Record sets may end on any thread.
class BlockPool {
  public:
    using Block = std::unique_ptr<std::byte[]>;
    static constexpr std::size_t block_size = std::size_t{256} * 1024;
    static constexpr std::size_t most_blocks = 16;

    Block take() {
        {
            const std::lock_guard lock(mutex_);
            if (!blocks_.empty()) {
                Block block = std::move(blocks_.back());
                blocks_.pop_back();
                return block;
            }
        }
        return std::make_unique_for_overwrite<std::byte[]>(block_size);
    }

    void give_back(std::vector<Block>&& blocks) noexcept {
        const std::lock_guard lock(mutex_);
        while (!blocks.empty() && blocks_.size() < most_blocks) {
            blocks_.push_back(std::move(blocks.back()));
            blocks.pop_back();
        }
    }

    [[nodiscard]] std::size_t size() const {
        const std::lock_guard lock(mutex_);
        return blocks_.size();
    }

  private:
    std::vector<Block> blocks_ = reserved();
    mutable std::mutex mutex_;

    static std::vector<Block> reserved() {
        std::vector<Block> blocks;
        blocks.reserve(most_blocks);
        return blocks;
    }
};

// Blocks of a pool for as long as they are used.
class PooledBlocks {
  public:
    explicit PooledBlocks(std::shared_ptr<BlockPool> pool) noexcept : pool_(std::move(pool)) {}
    PooledBlocks(PooledBlocks&&) noexcept = default;
    PooledBlocks& operator=(PooledBlocks&& other) noexcept {
        give_back();
        pool_ = std::move(other.pool_);
        blocks_ = std::move(other.blocks_);
        return *this;
    }
    ~PooledBlocks() { give_back(); }

    // Of BlockPool::block_size bytes.
    std::byte* add() {
        blocks_.push_back(pool_ != nullptr
                              ? pool_->take()
                              : std::make_unique_for_overwrite<std::byte[]>(BlockPool::block_size));
        return blocks_.back().get();
    }

  private:
    void give_back() noexcept {
        if (pool_ != nullptr && !blocks_.empty()) {
            pool_->give_back(std::move(blocks_));
        }
    }

    std::shared_ptr<BlockPool> pool_;
    std::vector<BlockPool::Block> blocks_;
};

}  // namespace cvdeveloper::standalone
