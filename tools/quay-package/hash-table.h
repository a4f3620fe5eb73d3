// A compact map from 64-bit hashes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Open addressing with at most two thirds of the slots in use: a value of 8 bytes costs 24 to 48 bytes an element, with
// no allocation of its own. Keys are hashes already; 0 stands for a free slot and is taken for 1. Nothing is removed.
template <typename Value>
class HashTable {
public:
    HashTable() : slots_(1024) {}

    // The value of the key, or null. Valid until the next insertion.
    Value* Find(std::uint64_t key) {
        Slot& slot = SlotOf(slots_, Usable(key));
        return slot.key == 0 ? nullptr : &slot.value;
    }

    // The value of the key, made from nothing if there is none.
    Value& operator[](std::uint64_t key) {
        if ((size_ + 1) * 3 > slots_.size() * 2) {
            Grow();
        }
        Slot& slot = SlotOf(slots_, Usable(key));
        if (slot.key == 0) {
            slot.key = Usable(key);
            ++size_;
        }
        return slot.value;
    }

private:
    struct Slot {
        std::uint64_t key = 0;
        Value value = {};
    };

    static std::uint64_t Usable(std::uint64_t key) { return key == 0 ? 1 : key; }

    static Slot& SlotOf(std::vector<Slot>& slots, std::uint64_t key) {
        // The number of slots is a power of two; the upper bits are folded in, as FNV's lower ones are the weaker.
        std::size_t at = (key ^ (key >> 32)) & (slots.size() - 1);
        while (slots[at].key != 0 && slots[at].key != key) {
            at = (at + 1) & (slots.size() - 1);
        }
        return slots[at];
    }

    void Grow() {
        std::vector<Slot> larger(slots_.size() * 2);
        for (const Slot& slot : slots_) {
            if (slot.key != 0) {
                SlotOf(larger, slot.key) = slot;
            }
        }
        slots_.swap(larger);
    }

    std::vector<Slot> slots_;
    std::size_t size_ = 0;
};
