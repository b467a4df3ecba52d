#include "accttool.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

namespace {

constexpr int DemoTimeoutMs = 10 * 60 * 1000;
constexpr int CommandTimeoutMs = 60 * 1000;

// Runs lumo-acct; its standard output, or false with what it said on failure.
bool run(const QStringList &arguments, int timeoutMs, QString *output, QString *error)
{
    QProcess tool;
    tool.start(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("lumo-acct")), arguments);
    const bool finished = tool.waitForFinished(timeoutMs);
    const QString said = QString::fromUtf8(tool.readAllStandardError()).trimmed();
    if (!finished || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0) {
        *error = said.isEmpty() ? tool.errorString() : said;
        return false;
    }
    *output = QString::fromUtf8(tool.readAllStandardOutput());
    return true;
}

} // namespace

namespace AcctTool {

bool ensureDemo(const QString &path, QString *error)
{
    if (QFileInfo::exists(path))
        return true;
    QDir().mkpath(QFileInfo(path).absolutePath());
    QString output;
    QString said;
    if (!run({QStringLiteral("demo"), path}, DemoTimeoutMs, &output, &said)) {
        *error = QStringLiteral("演示账套创建失败：%1").arg(said);
        QFile::remove(path);
        return false;
    }
    return true;
}

bool create(const QString &path, const QString &administrator, QString *error)
{
    QString output;
    QString said;
    if (!run({QStringLiteral("create"), path, QStringLiteral("--admin"), administrator}, CommandTimeoutMs, &output, &said)) {
        *error = QStringLiteral("账套没有创建：%1").arg(said);
        return false;
    }
    return true;
}

QStringList users(const QString &path, QString *error)
{
    QString output;
    if (!run({QStringLiteral("users"), path}, CommandTimeoutMs, &output, error))
        return {};
    return output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace AcctTool
