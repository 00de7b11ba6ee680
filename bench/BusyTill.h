#pragma once

#include "bench/Shop.h"

namespace bench {

// A copy of the shop whose screens have much to show: every button of the click table has a product with a picture of
// its own, and three of ten lines were sold in periods that are still open.
class BusyTill {
public:
    BusyTill(const Shop& shop, const QString& folder);

    const QString& Folder() const { return folder_; }
    QString StorePath() const;
    // Full path of the picture that a product's Pict names.
    QString PicturePath(const QString& picture) const;

private:
    void FillClickTable(const std::vector<Goods>& products) const;
    void OpenPeriods() const;

    QString folder_;
};

// The program in this folder behind its login: both stores open, and settings by which a receipt has all its parts.
class LoggedIn {
public:
    explicit LoggedIn(const QString& folder);
    explicit LoggedIn(const BusyTill& till) : LoggedIn(till.Folder()) {}
    ~LoggedIn();
    LoggedIn(const LoggedIn&) = delete;
    LoggedIn& operator=(const LoggedIn&) = delete;
};

}  // namespace bench
