// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/client/Options.h"

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>

namespace {

constexpr const char* usage = R"(usage: desktop-client [OPTIONS]
A window for tests. Its standard output tells what happens to it, its standard input moves it.
  --title TEXT
  --class INSTANCE,CLASS
  --geometry X,Y,WxH      of the window without its frame, in native pixels
  --colour #rrggbb
  --pattern SEED          every pixel its own colour
  --type NORMAL|DIALOG|UTILITY|DOCK|...
  --override-redirect     not managed by the window manager
  --argb                  32 bits deep, alpha from 0 at the left to 255 at the right
  --csd L,R,T,B           draws its own shadow, so many pixels wide, and wants no frame
  --shaped                rounded corners
  --no-pid                does not tell its process
  --own                   marked as a window of Pixmallow
  --fullscreen
  --minimized
Lines it writes: mapped 0xID (on screen, painted and managed), unmapped, geometry X,Y,WxH,
  focus in, focus out, key CHORD, released KEY, press BUTTON X,Y, release BUTTON X,Y,
  keyboard grabbed, keyboard not grabbed, keyboard ungrabbed
Lines it reads: raise, lower, move X Y, resize W H, unmap, map, grab keyboard, ungrab keyboard, close
)";

[[noreturn]] void refuse(const std::string& what)
{
    std::fprintf(stderr, "desktop-client: %s\n%s", what.c_str(), usage);
    std::exit(2);
}

template <typename... Numbers>
void scan(const std::string& text, const char* format, Numbers*... numbers)
{
    int read = 0; // The format ends in %n, so that nothing may follow.
    const int found = std::sscanf(text.c_str(), format, numbers..., &read);
    if (found != int(sizeof...(numbers)) || read != int(text.size()))
        refuse("not understood: " + text);
}

} // namespace

Options readOptions(int count, char** arguments)
{
    Options options;
    Look& look = options.look;
    const std::map<std::string, std::function<void(const std::string&)>> withValue {
        {"--title", [&](auto& value) { options.title = value; }},
        {"--type", [&](auto& value) { options.type = value; }},
        {"--pattern", [&](auto& value) { scan(value, "%u%n", &look.seed.emplace()); }},
        {"--colour", [&](auto& value) { scan(value, "#%6x%n", &look.colour); }},
        {"--class",
            [&](auto& value) {
                const auto comma = value.find(',');
                if (comma == std::string::npos)
                    refuse("--class takes INSTANCE,CLASS");
                options.instance = value.substr(0, comma);
                options.className = value.substr(comma + 1);
            }},
        {"--geometry",
            [&](auto& value) {
                scan(value, "%d,%d,%dx%d%n", &options.x, &options.y, &options.width,
                    &options.height);
            }},
        {"--csd",
            [&](auto& value) {
                scan(value, "%d,%d,%d,%d%n", &look.left, &look.right, &look.top, &look.bottom);
            }},
    };
    const std::map<std::string, std::function<void()>> alone {
        {"--override-redirect", [&] { options.overrideRedirect = true; }},
        {"--argb", [&] { look.translucent = true; }},
        {"--shaped", [&] { options.shaped = true; }},
        {"--no-pid", [&] { options.withPid = false; }},
        {"--own", [&] { options.own = true; }},
        {"--fullscreen", [&] { options.fullscreen = true; }},
        {"--minimized", [&] { options.minimized = true; }},
    };
    for (int index = 1; index < count; ++index) {
        const std::string name = arguments[index];
        if (const auto option = alone.find(name); option != alone.end()) {
            option->second();
        } else if (const auto valued = withValue.find(name); valued != withValue.end()) {
            if (++index == count)
                refuse(name + " needs a value");
            valued->second(arguments[index]);
        } else {
            refuse("no such option: " + name);
        }
    }
    if (options.width < 1 || options.height < 1)
        refuse("a window is at least 1x1");
    return options;
}
