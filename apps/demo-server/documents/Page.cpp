#include "documents/Page.h"

namespace kavor::demo {

namespace {

constexpr const char* sheet =
    "body{margin:0;background:#FAF6EE;color:#20262B;font:17px/1.5 Cabin,Roboto,sans-serif}"
    "header{background:#123F31;color:#FAF6EE;padding:22px 20px;border-bottom:6px solid #E0A126}"
    "header h1{margin:0;font-size:26px}header p{margin:4px 0 0;opacity:.85}"
    "main{max-width:640px;margin:0 auto;padding:20px}"
    ".card{background:#fff;border:1px solid #E6DFD1;border-radius:12px;padding:16px 18px;margin:0 0 16px}"
    "ol.road{list-style:none;display:flex;padding:0;margin:8px 0 0}"
    "ol.road li{flex:1;text-align:center;font-size:14px;color:#6B7280;border-top:5px solid "
    "#E6DFD1;padding-top:8px}"
    "ol.road li.done{border-color:#E0A126;color:#123F31;font-weight:bold}"
    "a.button{display:inline-block;background:#123F31;color:#fff;padding:13px 22px;border-radius:12px;"
    "text-decoration:none}table{width:100%;border-collapse:collapse}td{padding:5px 0;border-bottom:1px solid "
    "#E6DFD1}"
    "td.price{text-align:right;white-space:nowrap;font-weight:bold}h2{font-size:20px;margin:0 0 "
    "8px;color:#123F31}"
    "small{color:#6B7280}.turn{border-left:4px solid #E0A126;padding:2px 0 2px 14px;margin:0 0 14px}"
    ".turn.programme{border-color:#123F31}.turn p{margin:2px 0;white-space:pre-line;overflow-wrap:anywhere}"
    "label{display:block;margin:0 0 14px;color:#6B7280;font-size:15px}input{display:block;width:100%;"
    "box-sizing:border-box;font:inherit;font-size:17px;color:#20262B;min-height:48px;padding:8px 12px;"
    "margin-top:4px;border:1px solid #CFC6B4;border-radius:12px;background:#fff}"
    "button{font:inherit;min-height:48px;background:#123F31;color:#fff;border:0;padding:0 22px;"
    "border-radius:12px}.fault{color:#D64545;margin:0 0 8px}video{width:100%;border-radius:12px}";

} // namespace

std::string pageOf(const std::string& title, const std::string& subtitle, const std::string& content) {
    return "<!DOCTYPE html><html lang=\"es\"><head><meta charset=\"utf-8\"><meta name=\"viewport\" "
           "content=\"width=device-width,initial-scale=1\"><title>" +
           escaped(title) + "</title><style>" + sheet + "</style></head><body><header><h1>" + escaped(title) +
           "</h1><p>" + escaped(subtitle) + "</p></header><main>" + content + "</main></body></html>";
}

std::string escaped(const std::string& text) {
    std::string safe;
    for (const char letter : text) {
        switch (letter) {
        case '&':
            safe += "&amp;";
            break;
        case '<':
            safe += "&lt;";
            break;
        case '>':
            safe += "&gt;";
            break;
        case '"':
            safe += "&quot;";
            break;
        default:
            safe += letter;
        }
    }
    return safe;
}

} // namespace kavor::demo
