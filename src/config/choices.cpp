#include "config/choices.h"

#include <algorithm>

namespace tonarix {

namespace {

/// What an entry stands for: its item data, or its place.
int entry_value(const ListControl& list, Choice choice, int entry) {
  const int data = list.items.at(static_cast<std::size_t>(entry)).item_data;
  return data == ListControl::kPlainEntry ? entry + choice_row(choice).lowest : data;
}

void select_value(ListControl& list, Choice choice, int value) {
  list.selected = -1;
  for (int entry = 0; entry < static_cast<int>(list.items.size()); ++entry) {
    if (entry_value(list, choice, entry) == value) list.selected = entry;
  }
}

}  // namespace

const Choices::Row& Choices::add(Row row) {
  rows_.push_back(std::move(row));
  return rows_.back();
}

Choices::Row* Choices::row_of(Choice choice) {
  const auto found = std::ranges::find(rows_, choice, &Row::choice);
  return found == rows_.end() ? nullptr : &*found;
}

const Choices::Row* Choices::find(Choice choice) const {
  const auto found = std::ranges::find(rows_, choice, &Row::choice);
  return found == rows_.end() ? nullptr : &*found;
}

void Choices::set_rule(Choice choice, Rule rule) {
  if (Row* row = row_of(choice)) row->rule = std::move(rule);
}

void Choices::set(Choice choice, std::int16_t value) {
  set_choice(settings_, choice, value);
  show(choice);
  const Row* row = find(choice);
  if (row && row->rule) row->rule();
}

void Choices::take_entry(Choice choice) {
  const Row* row = find(choice);
  if (!row || !row->list) throw RuntimeError::index_out_of_range("Choices");
  set(choice, static_cast<std::int16_t>(entry_value(*row->list, choice, row->list->selected)));
}

void Choices::show(Choice choice) {
  Row* row = row_of(choice);
  if (!row) return;
  const int value = choice_value(settings_, choice);
  if (row->list) select_value(*row->list, choice, value);
  for (OptionControl& option : row->options) option.value = option.index() == value;
}

void Choices::start() {
  for (const Row& row : rows_) {
    if (!choice_words(row.choice).follows) set(row.choice, choice_value(settings_, row.choice));
  }
}

void Choices::set_captions(const Texts& texts) {
  for (const Row& row : rows_) {
    const ChoiceWords& words = choice_words(row.choice);
    const auto* caption = words.captions.begin();
    for (OptionControl& option : row.options) {
      option.text = caption->before;
      if (caption->key != TextKey{}) option.text += texts.Wort(caption->key);
      ++caption;
    }
    if (row.list && words.list_name != TextKey{}) {
      row.list->accessible_name = texts.Wort(words.list_name);
    }
  }
}

bool Choices::visible(Choice choice) const {
  const Row* row = find(choice);
  if (!row) return false;
  const Control& control = row->control();
  return control.visible && (!control.container || control.container->visible);
}

std::string Choices::shown(Choice choice) const {
  const Row* row = find(choice);
  const std::int16_t value = choice_value(settings_, choice);
  if (!row) return std::to_string(value);
  if (row->list) return row->list->selected_text();
  const auto chosen = std::ranges::find_if(row->options, &OptionControl::value);
  return chosen == row->options.end() ? std::string() : chosen->text;
}

}  // namespace tonarix
