#include "script/ScriptEvents.h"

#include <array>
#include <charconv>
#include <cmath>

namespace quilm {

namespace {

std::string_view ButtonsWord(Buttons buttons) { return buttons == Buttons::Ok ? "ok" : "yes-no"; }

std::string_view IconWord(Icon icon) {
  switch (icon) {
    case Icon::None:
      return "none";
    case Icon::Information:
      return "information";
    case Icon::Question:
      return "question";
    case Icon::Exclamation:
      return "exclamation";
    case Icon::Critical:
      return "critical";
  }
  return "none";
}

}  // namespace

Json NumberJson(f32 value) {
  if (!std::isfinite(value)) return nullptr;
  // The library prints doubles: the one that is nearest to the short text of the f32 prints as that text again.
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  f64 printed = 0;
  std::from_chars(text.data(), end, printed);
  return printed;
}

std::string JsonLine(const Json& event) { return event.dump(-1, ' ', false, Json::error_handler_t::replace); }

std::string_view AnswerWord(Answer answer) {
  return answer == Answer::Ok ? "ok" : answer == Answer::Yes ? "yes" : "no";
}

Json MessageEvent(const MessageShown& message) {
  return {{"event", "message"},
          {"text", message.text},
          {"title", message.title},
          {"buttons", ButtonsWord(message.buttons)},
          {"icon", IconWord(message.icon)},
          {"answer", AnswerWord(message.answer)}};
}

Json FileEvent(const FileAsked& asked) {
  return {{"event", "file"},
          {"kind", asked.save ? "save" : "open"},
          {"title", asked.title},
          {"filter", asked.filter},
          {"default", asked.defaultName},
          {"answer", asked.answer ? Json(*asked.answer) : Json(nullptr)}};
}

Json NamedEvent(std::string_view name) { return {{"event", name}}; }

Json ErrorEvent(const ScriptError& error) {
  return {{"event", "error"}, {"line", error.line}, {"command", error.command}, {"reason", error.reason}};
}

}  // namespace quilm
