#include "catalogue/Content.h"
#include "catalogue/Sections.h"
#include "documents/ActivationPdf.h"
#include "documents/MenuPdf.h"
#include "documents/OrderPage.h"
#include "documents/PaperPdfs.h"
#include "documents/PromotionPdf.h"
#include "documents/SheetPdf.h"
#include "documents/TextilePdf.h"
#include "server/DemoServer.h"
#include "server/OrderRecords.h"

#include <QBuffer>
#include <QFile>
#include <QSaveFile>

#include <httplib.h>

#include <filesystem>

namespace kavor::demo {

namespace {

Answer bytes(const QByteArray& content, const char* type) {
    return Answer::text(content.toStdString(), type);
}

std::string orderKey(const Order& order) {
    return order.token + "-" + std::to_string(order.created); // a cloud order changes under the same token
}

} // namespace

void DemoServer::addFileRoutes() {
    route("GET", R"(/img/([0-9a-f]{32})\.png)", Access::open, [this](const Call& call) {
        const auto picture = studio_.png(call.part(1));
        return picture ? bytes(*picture, "image/png") : Answer::message(404, "No existe la imagen.");
    });
    route("GET", "/logos/distribuidora.png", Access::open, [](const Call&) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        distributorLogo().save(&buffer, "PNG");
        return bytes(png, "image/png");
    });
    route("GET", R"(/fonts/([A-Za-z0-9_.-]+))", Access::open, [](const Call& call) {
        for (const TextileFont& font : installedFonts()) {
            QFile file(font.path);
            if (font.filename == call.part(1) && file.open(QIODevice::ReadOnly)) {
                return bytes(file.readAll(), "font/sfnt");
            }
        }
        return Answer::message(404, "No existe la tipografía.");
    });
    route("GET", R"(/pdf/([0-9a-f]+)\.pdf)", Access::open,
          [this](const Call& call) { return pdf(call.part(1)); });
    route("GET", R"(/documentos/activacion-(\d{1,6})\.pdf)", Access::open, [this](const Call& call) {
        const int id = std::stoi(call.part(1));
        return madePdf("activacion-" + call.part(1), [&] { return activationSheetPdf(id, catalogue_); });
    });
    route("GET", R"(/documentos/precios(-bebidas)?\.pdf)", Access::open, [this](const Call& call) {
        const Family family = call.part(1).empty() ? Family::beer : Family::market;
        return madePdf("precios" + call.part(1) + "-" + std::to_string(options_.brands),
                       [&] { return priceListPdf(family, catalogue_); });
    });
    route("GET", R"(/pedido/([0-9a-f]+))", Access::open, [this](const Call& call) {
        const auto order = orders_.findByToken(call.part(1));
        return order ? Answer::page(orderHtml(*order, orders_, catalogue_))
                     : Answer::message(404, "El pedido no existe.");
    });
    route("GET", R"(/carta/([0-9a-z]+))", Access::open, [this](const Call& call) {
        const auto order = orders_.findByToken(call.part(1));
        return order && order->kind == "brochure"
                   ? Answer::page(menuHtml(*order, catalogue_))
                   : Answer::page(
                         plainHtml("Carta de muestra", {"Aquí se verá la carta del local cuando se pida."}));
    });
    addTutorialRoutes();
    const auto plainPage = [this](const char* path, const char* title, const char* sentence) {
        route("GET", path, Access::open,
              [title, sentence](const Call&) { return Answer::page(plainHtml(title, {sentence})); });
    };
    plainPage("/recuperar", "Recuperar la contraseña", "Escribe a soporte@kavor.example y te daremos otra.");
    plainPage("/primera-vez", "Activar tu usuario", "Escribe a soporte@kavor.example para activarlo.");
    plainPage("/actualizar", "Actualizar la aplicación", "Instala la última versión para seguir trabajando.");
}

void DemoServer::addTutorialRoutes() {
    route("GET", R"(/tutoriales/(\d{1,3})\.mp4)", Access::open, [](const Call& call) {
        QFile film(":/films/" + QString::fromStdString(call.part(1)) + ".mp4");
        if (!film.open(QIODevice::ReadOnly)) {
            return Answer::message(404, "No existe el tutorial.");
        }
        Answer answer = bytes(film.readAll(), "video/mp4");
        answer.inRanges = true;
        return answer;
    });
    route("GET", R"(/tutoriales/(\d{1,3}))", Access::open, [](const Call& call) {
        for (const Manual& manual : manuals()) {
            if (manual.id == std::stoi(call.part(1))) {
                std::vector<std::string> sentences = {"<video controls src=\"/tutoriales/" + call.part(1) +
                                                      ".mp4\"></video>"};
                sentences.insert(sentences.end(), manual.steps.begin(), manual.steps.end());
                return Answer::page(plainHtml(manual.label, sentences));
            }
        }
        return Answer::message(404, "No existe el tutorial.");
    });
    route("GET", R"(/tutoriales/(\d{1,3})/token)", Access::open, [](const Call& call) {
        return Answer::text("tutorial-" + call.part(1), "text/plain; charset=utf-8");
    });
}

/// A document's PDF is made once and kept in the data folder.
Answer DemoServer::madePdf(const std::string& file, const std::function<QByteArray()>& make) {
    const std::lock_guard lock(pdfMutex_);
    const auto path = std::filesystem::path(options_.dataFolder) / "pdf" / (file + ".pdf");
    QFile stored(QString::fromStdString(path.string()));
    if (stored.open(QIODevice::ReadOnly)) {
        return bytes(stored.readAll(), "application/pdf");
    }
    const QByteArray made = make();
    if (made.isEmpty()) {
        return Answer::message(404, "No existe el documento.");
    }
    QSaveFile target(stored.fileName());
    if (target.open(QIODevice::WriteOnly)) {
        target.write(made);
        target.commit();
    }
    return bytes(made, "application/pdf");
}

Answer DemoServer::pdf(const std::string& name) {
    const auto make = [this, &name](const std::string& kind, const Json& body) {
        if (kind == "textile") {
            return textilePdf(body, catalogue_);
        }
        if (kind == "promotion") {
            return promotionPdf(body, catalogue_);
        }
        if (kind == "sheet") {
            return sellingSheetPdf(body, catalogue_);
        }
        return menuPdf(body, catalogue_, baseUrl_ + "/carta/" + name);
    };
    if (const auto order = orders_.findByToken(name)) {
        if (order->kind == "activation") { // a later order may be tied to it, and its quota goes on
            return bytes(activationPdf(*order, orders_, catalogue_), "application/pdf");
        }
        return madePdf(orderKey(*order), [&] { return make(order->kind, order->body); });
    }
    if (const auto document = orders_.document(name)) {
        return madePdf(name, [&] { return make(document->kind, document->body); });
    }
    return Answer::message(404, "No existe el documento.");
}

} // namespace kavor::demo
