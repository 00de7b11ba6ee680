#pragma once

#include "forms/Form.h"
#include "ui_TextPreview.h"

// A text file on the screen, which can be printed, saved and deleted: the base of the preview and of the ribbon.
class TextPreview : public forms::Form {
    Q_OBJECT

protected:
    TextPreview(const QString& name, const QString& title);

    // The full path of the text.
    virtual QString FilePath() const = 0;
    // The file that has to be there for saving.
    virtual QString NeededForSaving() const { return FilePath(); }

    void ShowFile();
    void Form_Activate() override;
    bool Form_Unload() override { return !printing_; }

    Ui::TextPreview ui;

private:
    void cmdPrint_Click();
    void cmdSacuvaj_Click();
    void cmdBrisi_Click();
    void cmdHelp_Click();
    void cmdClose_Click();

    // The title tells how far the printing of a long text has come.
    void ShowProgress(const QString& title, int percent);

    bool printing_ = false;
};
