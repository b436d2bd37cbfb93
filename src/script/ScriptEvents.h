// The events that a script's run prints: JSON in UTF-8, one object a line.
#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>

#include "core/Types.h"
#include "shell/HeadlessPlatform.h"

namespace quilm {

// Keeps its keys in the order in which they were set.
using Json = nlohmann::ordered_json;

// A number with as few digits as give the same 32 bits back; null when it is not finite.
Json NumberJson(f32 value);

// One line without its end. Bytes that are no UTF-8 become the replacement character.
std::string JsonLine(const Json& event);

std::string_view AnswerWord(Answer answer);
Json MessageEvent(const MessageShown& message);
Json FileEvent(const FileAsked& asked);
Json NamedEvent(std::string_view name);

// What stops a run before its end: a command that cannot be done. Not a std::exception, so that it passes the
// handlers of the pages as the end of the program does.
struct ScriptError {
  int line = 0;
  std::string command;
  std::string reason;
  bool fault = false;  // an exception that came out of the program; else the command asked for what cannot be done
};
Json ErrorEvent(const ScriptError& error);

using EventSink = std::function<void(const Json&)>;

}  // namespace quilm
