#include "protocol/kept_exercise.h"

#include <pugixml.hpp>
#include <sstream>

#include "protocol/document.h"

namespace tonarix {

namespace {

constexpr std::string_view kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr std::string_view kTail = "</kept>\n";
constexpr std::string_view kProtocol = "<exercise>";  // as a document of its own begins

void add_texts(pugi::xml_node parent, const char* name, const std::vector<std::string>& texts) {
  pugi::xml_node list = parent.append_child(name);
  for (const std::string& text : texts) {
    list.append_child("text").append_attribute("value") = xml_text(text).c_str();
  }
}

std::vector<std::string> texts_in(pugi::xml_node list) {
  std::vector<std::string> texts;
  for (const pugi::xml_node text : list.children("text")) {
    texts.emplace_back(text.attribute("value").value());
  }
  return texts;
}

void add_training(pugi::xml_node parent, const KeptTraining& training) {
  pugi::xml_node node = parent.append_child("training");
  node.append_attribute("study") = training.study;
  node.append_attribute("kind") = training.kind;
  node.append_attribute("continued") = training.continued;
  add_texts(node, "settings", training.settings);
  add_texts(node, "state", training.state);
  if (training.stored_before) add_texts(node, "stored_before", *training.stored_before);
}

KeptTraining training_in(pugi::xml_node node) {
  KeptTraining training{.study = node.attribute("study").as_int(),
                        .kind = node.attribute("kind").as_int(),
                        .continued = node.attribute("continued").as_bool(),
                        .settings = texts_in(node.child("settings")),
                        .state = texts_in(node.child("state")),
                        .stored_before = {}};
  if (const pugi::xml_node before = node.child("stored_before")) {
    training.stored_before = texts_in(before);
  }
  return training;
}

}  // namespace

KeptText kept_text(const KeptExercise& exercise) {
  pugi::xml_document document;
  pugi::xml_node about = document.append_child("about");
  about.append_attribute("user") = xml_text(exercise.user).c_str();
  about.append_attribute("tasks") = exercise.tasks;
  about.append_attribute("title") = xml_text(exercise.title).c_str();
  about.append_attribute("file") = xml_text(exercise.file).c_str();
  if (exercise.training) add_training(about, *exercise.training);
  std::ostringstream head;
  head << kDeclaration << "<kept>\n";
  about.print(head, "  ");
  std::string_view body = exercise.document;
  if (body.starts_with(kDeclaration)) body.remove_prefix(kDeclaration.size());
  return {std::move(head).str(), body, kTail};
}

std::optional<KeptExercise> read_kept(std::string_view text) {
  pugi::xml_document document;
  if (!document.load_buffer(text.data(), text.size())) return {};
  const pugi::xml_node kept = document.child("kept");
  const pugi::xml_node about = kept.child("about");
  if (!about || !text.ends_with(kTail)) return {};
  KeptExercise exercise{.user = about.attribute("user").value(),
                        .tasks = about.attribute("tasks").as_int(),
                        .file = about.attribute("file").value(),
                        .document = {},
                        .training = {},
                        .title = about.attribute("title").value()};
  if (const pugi::xml_node training = about.child("training")) {
    exercise.training = training_in(training);
  }
  if (kept.child("exercise")) {
    text.remove_suffix(kTail.size());
    text.remove_prefix(std::min(text.find(kProtocol), text.size()));
    exercise.document = std::string(kDeclaration) + std::string(text);
  }
  return exercise;
}

}  // namespace tonarix
