#include "activations/PartyCalendarFile.h"

#include "activations/PartyDates.h"

#include <cstdio>
#include <ctime>

namespace kavor {

namespace {

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        if (character == '\n') {
            result += "\\n";
        } else if (character != '\r') {
            if (character == '\\' || character == ';' || character == ',')
                result += '\\';
            result += character;
        }
    }
    return result;
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// A line of at most 75 bytes, the rest on lines that begin with a blank; no character is cut.
void addLine(std::string& file, std::string line) {
    constexpr std::size_t most = 74;
    while (line.size() > most) {
        std::size_t end = most;
        while (end > 1 && continuesCharacter(line[end]))
            --end;
        file += line.substr(0, end) + "\r\n";
        line = " " + line.substr(end);
    }
    file += line + "\r\n";
}

std::string moment(const LocalDateTime& at) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d%02d%02dT%02d%02d%02d", at.year, at.month, at.day, at.hour,
                  at.minute, at.second);
    return text;
}

std::string universalMoment(std::time_t at) {
    std::tm parts{};
    gmtime_r(&at, &parts);
    return moment({parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min,
                   parts.tm_sec}) +
           "Z";
}

std::optional<LocalDateTime> momentOf(const std::string& day, const std::string& hour) {
    return LocalDateTime::parse(day + " " + hour + ":00");
}

LocalDateTime nextDay(const LocalDateTime& at) {
    LocalDateTime noon = at;
    noon.hour = 12;                    // a change of the clocks moves no day
    constexpr std::time_t day = 86400; // seconds
    LocalDateTime next = LocalDateTime::fromTime(noon.toTime() + day);
    next.hour = at.hour;
    next.minute = at.minute;
    next.second = at.second;
    return next;
}

void addParty(std::string& file, const OrderedParty& party, std::size_t place, const LocalDateTime& now) {
    const auto& info = party.order.activationInfo;
    const auto& customer = party.order.customer;
    const auto start = momentOf(info.dateEvent, info.hourFrom);
    auto end = momentOf(info.dateEvent, info.hourTo);
    if (!start || !end)
        return;
    if (*end <= *start)
        end = nextDay(*end);
    const std::string number = party.orderId ? std::to_string(*party.orderId) : "sin-numero";
    std::string description = "Agencia: " + party.agency;
    if (party.orderId)
        description += "\nPedido: " + number;
    if (info.otherActivationRelationIdentifier)
        description += "\nAsociada al pedido " + std::to_string(*info.otherActivationRelationIdentifier);
    if (customer.contact)
        description += "\nContacto: " + *customer.contact;
    if (customer.telephone)
        description += "\nTeléfono: " + *customer.telephone;
    addLine(file, "BEGIN:VEVENT");
    addLine(file, "UID:" + number + "-" + moment(*start) + "-" + std::to_string(place) + "@kavor");
    addLine(file, "DTSTAMP:" + universalMoment(now.toTime()));
    addLine(file, "DTSTART:" + moment(*start));
    addLine(file, "DTEND:" + moment(*end));
    addLine(file, "SUMMARY:" + escaped(party.name + " · " + customer.name));
    addLine(file, "LOCATION:" + escaped(customer.fullAddress));
    addLine(file, "DESCRIPTION:" + escaped(description));
    addLine(file, "END:VEVENT");
}

} // namespace

std::string calendarFile(const std::vector<OrderedParty>& parties, const LocalDateTime& now) {
    std::string file;
    addLine(file, "BEGIN:VCALENDAR");
    addLine(file, "VERSION:2.0");
    addLine(file, "PRODID:-//Kavor//Activaciones//ES");
    for (std::size_t place = 0; place < parties.size(); ++place)
        addParty(file, parties[place], place, now);
    addLine(file, "END:VCALENDAR");
    return file;
}

} // namespace kavor
