// The default printer of this computer, or a PDF in the folder LOG where there is none.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/machine.h"
#include "platform/page_layout.h"

namespace desktop {

/// All on the program thread: the toolkit lets any thread paint on paper, as long as one does it from begin to end.
class PaperPrinter final : public platform::Printer {
 public:
    /// `notices` outlives the printer.
    PaperPrinter(std::string programFolder, platform::Notices& notices);
    /// Gives a document up that was not ended.
    ~PaperPrinter() override;

    void begin(const std::string& name) override;
    void setFont(const std::string& name, double points) override;
    void setBold(bool bold) override;
    void print(int column, const std::string& text) override;
    void endLine() override;
    void endPage() override;
    void endDocument() override;

 private:
    void choosePaper(const std::string& name);
    void turnToPage();
    void draw(int column, const QString& text);
    void dropDocument();
    [[noreturn]] void fail(const std::string& why);

    std::string programFolder_;
    platform::Notices& notices_;
    std::unique_ptr<QPrinter> printer_;
    std::unique_ptr<QPainter> painter_;  // behind the printer, which it paints on
    std::filesystem::path file_;         ///< place of the stand-in, empty when there is a printer
    std::filesystem::path beside_;       ///< where it is written until it is whole
    platform::PageLayout layout_;
    QFont font_;
    int page_ = 1;  ///< of the paper
};

}  // namespace desktop
