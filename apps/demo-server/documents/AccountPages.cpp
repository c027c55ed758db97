#include "documents/AccountPages.h"

#include "documents/Page.h"

#include <array>

namespace kavor::demo {

std::span<const ProfileField> profileFields() {
    static constexpr std::array fields = {
        ProfileField{"name", "Nombre", "text", true},
        ProfileField{"email", "Correo electrónico", "email", true},
        ProfileField{"telefono", "Teléfono", "tel", true},
        ProfileField{"direccion1", "Dirección", "text", false},
        ProfileField{"direccion2", "Dirección (continuación)", "text", false},
        ProfileField{"cp", "Código postal", "text", false},
        ProfileField{"municipio", "Municipio", "text", false},
        ProfileField{"provincia", "Provincia", "text", false},
    };
    return fields;
}

std::string profileHtml(const Json& values, const std::vector<std::string>& faults, bool saved) {
    std::string content = "<div class=\"card\">";
    if (saved) {
        content += "<p><b>Datos guardados.</b> Vuelve a la aplicación y abre tu perfil de nuevo.</p>";
    }
    for (const std::string& fault : faults) {
        content += "<p class=\"fault\">" + escaped(fault) + "</p>";
    }
    content += "<form method=\"post\">";
    for (const ProfileField& field : profileFields()) {
        const auto value = values.find(field.key);
        content += std::string("<label>") + field.label + "<input name=\"" + field.key + "\" type=\"" +
                   field.type + "\" maxlength=\"120\" value=\"" +
                   (value != values.end() && value->is_string() ? escaped(value->get<std::string>()) : "") +
                   "\"" + (field.required ? " required" : "") + "></label>";
    }
    return pageOf("Tus datos", "Programa Kavor", content + "<button>Guardar</button></form></div>");
}

std::string suggestionsHtml(const Json& suggestions) {
    std::string content;
    for (const Json& suggestion : suggestions) {
        content += "<div class=\"card\"><h2>" + escaped(suggestion["category"].get<std::string>()) +
                   "</h2><div class=\"turn\"><small>" + escaped(suggestion["account"].get<std::string>()) +
                   ", " + escaped(suggestion["created"].get<std::string>()) + "</small><p>" +
                   escaped(suggestion["body"].get<std::string>()) + "</p></div></div>";
    }
    return pageOf("Buzón de sugerencias", "Programa Kavor, servidor de demostración",
                  content.empty() ? "<div class=\"card\"><p>Todavía no ha llegado ninguna.</p></div>"
                                  : content);
}

std::string mailsHtml(const Json& mails) {
    std::string content;
    for (const Json& mail : mails) {
        content += "<div class=\"card\"><h2>" + escaped(mail["subject"].get<std::string>()) +
                   "</h2><div class=\"turn\"><small>Para " + escaped(mail["to"].get<std::string>()) + ", " +
                   escaped(mail["created"].get<std::string>()) + "</small><p>Pedido " +
                   mail["order_id"].dump() + " de " + escaped(mail["account"].get<std::string>()) +
                   ".</p></div><p><a class=\"button\" href=\"" + escaped(mail["url_pdf"].get<std::string>()) +
                   "\">Ver el PDF adjunto</a></p></div>";
    }
    return pageOf("Correos", "Programa Kavor, servidor de demostración: no sale ninguno",
                  content.empty() ? "<div class=\"card\"><p>Todavía no se ha enviado ninguno.</p></div>"
                                  : content);
}

} // namespace kavor::demo
