#pragma once

/// @file
/// A real browser without a window: headless Chromium, remote-controlled through chromedriver.

#include <curl/curl.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

namespace kestrin::test {

/// A browser with one window. Raises std::runtime_error if it cannot do what is asked for.
class Browser {
 public:
  Browser() : driver_(popen(KESTRIN_CHROMEDRIVER " --port=0 2>/dev/null", "r")), curl_(curl_easy_init()) {
    if (driver_ == nullptr || curl_ == nullptr) throw std::runtime_error("cannot start chromedriver");
    address_ = "http://127.0.0.1:" + Port();
    const rapidjson::Document started =
        Request("/session", R"({"capabilities":{"alwaysMatch":{)"
                            R"("goog:chromeOptions":{"binary":")" KESTRIN_CHROMIUM
                            R"(","args":["--headless=new","--no-sandbox",)"
                            R"("--disable-gpu","--window-size=1200,800"]}}}})");
    session_ = std::string("/session/") + started["value"]["sessionId"].GetString();
  }
  Browser(const Browser&) = delete;
  Browser& operator=(const Browser&) = delete;
  ~Browser() {
    try {
      curl_easy_setopt(curl_.get(), CURLOPT_CUSTOMREQUEST, "DELETE");
      static_cast<void>(Request(session_, ""));
      curl_easy_setopt(curl_.get(), CURLOPT_CUSTOMREQUEST, nullptr);
      static_cast<void>(Request("/shutdown", ""));
    } catch (const std::exception&) {
      // The driver is gone already.
    }
  }

  void Open(const std::string& path) {
    static_cast<void>(Request(session_ + "/url", R"({"url":"file://)" + path + "\"}"));
  }

  /// Runs JavaScript and returns the text of what it returns.
  std::string Run(const std::string& script) {
    rapidjson::StringBuffer body;
    rapidjson::Writer<rapidjson::StringBuffer> json(body);
    json.StartObject();
    json.Key("script");
    json.String(("return String((() => {" + script + "})())").c_str());
    json.Key("args");
    json.StartArray();
    json.EndArray();
    json.EndObject();
    const rapidjson::Document result = Request(session_ + "/execute/sync", body.GetString());
    return result["value"].GetString();
  }

  /// Types keys into what has the focus. "\uE007" is Enter, "\uE00C" Escape.
  void Type(std::string_view keys) {
    std::string actions;
    for (std::size_t i = 0; i < keys.size();) {
      const std::size_t length = keys[i] == '\\' ? 6 : 1;
      const std::string key = R"(","value":")" + std::string(keys.substr(i, length)) + "\"},";
      actions.append(R"({"type":"keyDown)").append(key).append(R"({"type":"keyUp)").append(key);
      i += length;
    }
    actions.pop_back();
    Perform(R"({"type":"key","id":"keys","actions":[)" + actions + "]}");
  }

  /// Moves the mouse to a place of the window, and presses its button there.
  void Point(int x, int y, bool isClick) {
    std::string actions =
        R"({"type":"pointerMove","x":)" + std::to_string(x) + R"(,"y":)" + std::to_string(y) + "}";
    if (isClick) actions += R"(,{"type":"pointerDown","button":0},{"type":"pointerUp","button":0})";
    Perform(R"({"type":"pointer","id":"mouse","parameters":{"pointerType":"mouse"},"actions":[)" + actions +
            "]}");
  }

  /// Drags a mouse, or with "touch" a finger, from a place to another. When pinching, a second
  /// finger does the same on the other side. Distances are from the place (x, y), along x.
  void Drag(const char* pointer, int x, int y, int from, int to, bool isPinch = false) {
    const auto finger = [&](const char* name, int sign) {
      const auto move = [&](int distance) {
        return R"({"type":"pointerMove","duration":50,"x":)" + std::to_string(x + sign * distance) +
               R"(,"y":)" + std::to_string(y) + "},";
      };
      return std::string(R"({"type":"pointer","id":")") + pointer + name +
             R"(","parameters":{"pointerType":")" + pointer + R"("},"actions":[)" + move(from) +
             R"({"type":"pointerDown","button":0},)" + move(to) + R"({"type":"pointerUp","button":0}]})";
    };
    Perform(isPinch ? finger("first", 1) + "," + finger("second", -1) : finger("first", 1));
  }

  void Wheel(int x, int y, int distance) {
    Perform(R"({"type":"wheel","id":"wheel","actions":[{"type":"scroll","deltaX":0,"duration":0,"x":)" +
            std::to_string(x) + R"(,"y":)" + std::to_string(y) + R"(,"deltaY":)" + std::to_string(distance) +
            "}]}");
  }

  /// Waits until a script returns "true".
  void WaitUntil(const std::string& script) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (Run(script) != "true") {
      if (std::chrono::steady_clock::now() > end) throw std::runtime_error("waited in vain for " + script);
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
  }

 private:
  struct Closer {
    void operator()(std::FILE* pipe) const { pclose(pipe); }
    void operator()(CURL* curl) const { curl_easy_cleanup(curl); }
  };

  /// The port that the driver says it listens on.
  std::string Port() {
    constexpr std::string_view kBefore = "successfully on port ";
    std::array<char, 512> line;
    while (std::fgets(line.data(), line.size(), driver_.get()) != nullptr) {
      const std::string_view text = line.data();
      const std::size_t place = text.find(kBefore);
      if (place == std::string_view::npos) continue;
      const std::string_view rest = text.substr(place + kBefore.size());
      return std::string(rest.substr(0, rest.find('.')));
    }
    throw std::runtime_error("chromedriver does not say its port");
  }

  void Perform(const std::string& source) {
    static_cast<void>(Request(session_ + "/actions", R"({"actions":[)" + source + "]}"));
  }

  static std::size_t Receive(const char* bytes, std::size_t size, std::size_t count, void* text) {
    static_cast<std::string*>(text)->append(bytes, size * count);
    return size * count;
  }

  /// Posts a body, or gets if it is empty.
  rapidjson::Document Request(const std::string& path, const std::string& body) {
    std::string answer;
    CURL* curl = curl_.get();
    const std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> headers(
        curl_slist_append(nullptr, "Content-Type: application/json"), curl_slist_free_all);
    curl_easy_setopt(curl, CURLOPT_URL, (address_ + path).c_str());
    curl_easy_setopt(curl, CURLOPT_PROXY, "");
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, Receive);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &answer);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT, 60L);
    if (body.empty()) {
      curl_easy_setopt(curl, CURLOPT_HTTPGET, 1L);
    } else {
      curl_easy_setopt(curl, CURLOPT_POSTFIELDS, body.c_str());
    }
    const CURLcode code = curl_easy_perform(curl);
    if (code != CURLE_OK) throw std::runtime_error(curl_easy_strerror(code));
    rapidjson::Document json;
    json.Parse(answer.c_str());
    const bool isRight = json.IsObject() && json.HasMember("value") &&
                         !(json["value"].IsObject() && json["value"].HasMember("error"));
    if (!isRight) throw std::runtime_error("the browser answers: " + answer);
    return json;
  }

  std::unique_ptr<std::FILE, Closer> driver_;
  std::unique_ptr<CURL, Closer> curl_;
  std::string address_;
  std::string session_;
};

}  // namespace kestrin::test
