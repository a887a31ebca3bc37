#pragma once

// The files of a folder of fuzz regression inputs, by name; empty when the folder is.

#include <QDir>
#include <QFile>
#include <QMap>

inline QMap<QString, QByteArray> regressionInputs(const QString& folderPath) {
    QMap<QString, QByteArray> inputs;
    const QDir folder(folderPath);
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        inputs.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return inputs;
}
