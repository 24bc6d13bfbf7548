#pragma once

#include <list>
#include <unordered_map>
#include <utility>

/// Values in the order in which they came, each under a key of its own. Looking up, replacing and removing
/// take constant time however many there are.
template <typename Key, typename Value>
class OrderedIndex {
public:
  /// False, and nothing changed, where the key is taken.
  bool add(const Key& key, Value value) {
    const auto [place, isNew] = places_.try_emplace(key, values_.end());
    if (!isNew)
      return false;
    try {
      place->second = values_.insert(values_.end(), std::move(value));
    } catch (...) {
      places_.erase(place);
      throw;
    }
    return true;
  }

  /// A null pointer where the key is unknown; the index keeps ownership.
  [[nodiscard]] const Value* find(const Key& key) const {
    const auto place = places_.find(key);
    return place == places_.end() ? nullptr : &*place->second;
  }

  /// Puts another value, under another key, into an old one's place. False, and nothing changed, where the
  /// old key is unknown or the new one is taken.
  bool replace(const Key& oldKey, const Key& newKey, Value value) {
    const auto place = places_.find(oldKey);
    if (place == places_.end() || (oldKey != newKey && places_.count(newKey) != 0))
      return false;
    *place->second = std::move(value);
    auto entry = places_.extract(place);
    entry.key() = newKey;
    places_.insert(std::move(entry));
    return true;
  }

  /// False where the key is unknown.
  bool remove(const Key& key) {
    const auto place = places_.find(key);
    if (place == places_.end())
      return false;
    values_.erase(place->second);
    places_.erase(place);
    return true;
  }

  [[nodiscard]] const std::list<Value>& values() const { return values_; }

private:
  std::list<Value> values_;
  std::unordered_map<Key, typename std::list<Value>::iterator> places_;
};
