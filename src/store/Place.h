#pragma once

#include <QString>

namespace store {

// Where a store lies, as Database opens it: in a file, or on a server.
class Place {
public:
    // Not explicit: a path is the plain way to say it.
    Place(QString path) : path_(std::move(path)) {}
    // An address of the form postgresql://USER@HOST/DATABASE, as the client library reads it. Of its parameters
    // `schema` is the store's own: each shop of a server has one, "velton" when it names none. 3051 when it is no such
    // address.
    static Place Server(const QString& address);

    bool IsServer() const { return !address_.isEmpty(); }
    const QString& Path() const { return path_; }        // of a file
    const QString& Address() const { return address_; }  // of a server, without the schema
    const QString& SchemaName() const { return schema_; }
    // The same server, another schema.
    Place WithSchema(const QString& name) const;
    // For messages: never a password.
    QString Shown() const;

private:
    QString path_;
    QString address_;
    QString schema_;
};

}  // namespace store
