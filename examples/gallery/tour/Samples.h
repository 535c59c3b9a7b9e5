#ifndef SAMPLES_H
#define SAMPLES_H

#include <QTemporaryDir>

/// A temporary folder with files and folders for the tour to work in.
class Samples
{
public:
    Samples();

    QString path() const { return folder.path(); }
    bool has(const QString &name) const;

    /// The fixed folder of the device, when this run has a private one; empty otherwise, so that
    /// nothing of a machine's own is ever touched.
    static QString privateFtpFolder();

    /// Makes files, and folders for names that end with "/".
    static bool make(const QString &folder, const QStringList &names);

private:
    QTemporaryDir folder;
};

#endif // SAMPLES_H
