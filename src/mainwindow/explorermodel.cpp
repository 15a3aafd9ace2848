// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "mainwindow/explorermodel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestSlice = 8'000'000; // nanoseconds
// So that one network folder that does not answer holds up no other.
constexpr int readerThreads = 4;

} // namespace

ExplorerModel::ExplorerModel(QObject *parent)
    : QAbstractItemModel(parent)
    , root(std::make_unique<Node>(Node{{{}, NaturalOrder().key({}), true}}))
    , driveIcon(iconProvider.icon(QFileIconProvider::Drive))
    , folderIcon(iconProvider.icon(QFileIconProvider::Folder))
    , fileIcon(iconProvider.icon(QFileIconProvider::File))
{
    readers.setMaxThreadCount(readerThreads);
    sliceTimer.setSingleShot(true);
    connect(&sliceTimer, &QTimer::timeout, this, &ExplorerModel::updateRows);
    Update drives = {root.get(), readForExplorer({}).entries};
    while (changeRange(drives)) {
    }
    root->wasRead = true;
}

ExplorerModel::~ExplorerModel()
{
    readers.clear();
    readers.waitForDone();
}

QString ExplorerModel::path(const QModelIndex &index) const
{
    return pathOf(nodeAt(index));
}

void ExplorerModel::refresh(const QModelIndex &folder)
{
    Node *node = nodeAt(folder);
    if (node->entry.isFolder && node->job == 0)
        read(node);
}

bool ExplorerModel::isBusy() const
{
    return !jobs.isEmpty();
}

qint64 ExplorerModel::takeCost()
{
    return std::exchange(cost, 0);
}

QModelIndex ExplorerModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, nodeAt(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex ExplorerModel::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(nodeAt(child)->parent) : QModelIndex();
}

int ExplorerModel::rowCount(const QModelIndex &parent) const
{
    return static_cast<int>(nodeAt(parent)->children.size());
}

int ExplorerModel::columnCount(const QModelIndex & /*parent*/) const
{
    return 1;
}

bool ExplorerModel::hasChildren(const QModelIndex &parent) const
{
    // Whether a folder is empty is not known before it is opened.
    return nodeAt(parent)->entry.isFolder;
}

bool ExplorerModel::canFetchMore(const QModelIndex &parent) const
{
    const Node *node = nodeAt(parent);
    return node->entry.isFolder && !node->wasRead && node->job == 0;
}

void ExplorerModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        read(nodeAt(parent));
}

QVariant ExplorerModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Node *node = nodeAt(index);
    if (role == Qt::DecorationRole)
        return icon(node);
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    const QString &name = node->entry.name;
    // A drive: "C:", and yet "/".
    return name.size() > 1 && name.endsWith(u'/') ? name.chopped(1) : name;
}

QVariant ExplorerModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("Name");
    return QAbstractItemModel::headerData(section, orientation, role);
}

Qt::ItemFlags ExplorerModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
    return nodeAt(index)->entry.isFolder ? flags : flags | Qt::ItemNeverHasChildren;
}

QStringList ExplorerModel::mimeTypes() const
{
    return {u"text/uri-list"_s};
}

QMimeData *ExplorerModel::mimeData(const QModelIndexList &indexes) const
{
    QList<QUrl> urls;
    urls.reserve(indexes.size());
    for (const QModelIndex &index : indexes)
        urls.append(QUrl::fromLocalFile(path(index)));
    auto *data = new QMimeData;
    data->setUrls(urls);
    return data;
}

Qt::DropActions ExplorerModel::supportedDragActions() const
{
    return Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
}

ExplorerModel::Node *ExplorerModel::nodeAt(const QModelIndex &index) const
{
    return index.isValid() ? static_cast<Node *>(index.internalPointer()) : root.get();
}

QModelIndex ExplorerModel::indexOf(const Node *node) const
{
    if (!node->parent)
        return {};
    const auto &siblings = node->parent->children;
    // The rows are in order at all times, also while they change.
    const auto place = std::lower_bound(siblings.begin(), siblings.end(), node->entry,
                                        [](const std::unique_ptr<Node> &sibling, const ExplorerEntry &entry) {
                                            return sibling->entry < entry;
                                        });
    return createIndex(static_cast<int>(place - siblings.begin()), 0, node);
}

QString ExplorerModel::pathOf(const Node *node) const
{
    if (!node->parent || !node->parent->parent)
        return node->entry.name;
    QString path = pathOf(node->parent);
    if (!path.endsWith(u'/'))
        path += u'/';
    return path + node->entry.name;
}

QIcon ExplorerModel::icon(const Node *node) const
{
    if (node->entry.isFolder)
        return node->parent->parent ? folderIcon : driveIcon;
    const QString suffix = QFileInfo(node->entry.name).suffix().toLower();
    QIcon &found = fileIcons[suffix];
    if (found.isNull())
        found = iconProvider.icon(QFileInfo(u"name."_s + suffix));
    if (found.isNull())
        found = fileIcon;
    return found;
}

void ExplorerModel::read(Node *node)
{
    node->job = ++lastJob;
    jobs.insert(node->job, node);
    readers.start([this, job = node->job, folder = pathOf(node), stamp = node->stamp] {
        auto listing = std::make_shared<ExplorerListing>(readForExplorer(folder, stamp));
        QMetaObject::invokeMethod(this, [this, job, listing] { take(job, std::move(*listing)); });
    });
}

void ExplorerModel::take(int job, ExplorerListing listing)
{
    cost += listing.cost;
    Node *node = jobs.value(job);
    if (!node)
        return;
    if (!listing.isNew) {
        finish(node);
        return;
    }
    node->wasRead = true;
    node->stamp = listing.stamp;
    updates.push_back({node, std::move(listing.entries)});
    updateRows();
}

void ExplorerModel::updateRows()
{
    QElapsedTimer timer;
    timer.start();
    while (!updates.empty() && timer.nsecsElapsed() < longestSlice) {
        if (changeRange(updates.front()))
            continue;
        Node *node = updates.front().node;
        updates.pop_front();
        finish(node);
    }
    cost += timer.nsecsElapsed();
    if (!updates.empty())
        sliceTimer.start(0);
}

/// Takes rows out, or puts rows in, at the first place where they differ; false where none is left.
bool ExplorerModel::changeRange(Update &update)
{
    const auto &rows = update.node->children;
    const auto &entries = update.entries;
    std::size_t &position = update.position;
    while (position < rows.size() && position < entries.size() && rows[position]->entry == entries[position])
        ++position;

    std::size_t end = position;
    while (end < rows.size() && (position == entries.size() || rows[end]->entry < entries[position]))
        ++end;
    if (end > position) {
        removeRange(update, end);
        return true;
    }
    while (end < entries.size() && (position == rows.size() || entries[end] < rows[position]->entry))
        ++end;
    if (end == position)
        return false;
    insertRange(update, end);
    return true;
}

void ExplorerModel::insertRange(Update &update, std::size_t end)
{
    std::vector<std::unique_ptr<Node>> added;
    for (std::size_t i = update.position; i < end; ++i)
        added.push_back(std::make_unique<Node>(Node{std::move(update.entries[i]), update.node}));
    auto &rows = update.node->children;
    beginInsertRows(indexOf(update.node), static_cast<int>(update.position), static_cast<int>(end) - 1);
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(update.position),
                std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
    endInsertRows();
    update.position = end;
}

void ExplorerModel::removeRange(const Update &update, std::size_t end)
{
    auto &rows = update.node->children;
    const auto first = rows.begin() + static_cast<std::ptrdiff_t>(update.position);
    const auto last = rows.begin() + static_cast<std::ptrdiff_t>(end);
    beginRemoveRows(indexOf(update.node), static_cast<int>(update.position), static_cast<int>(end) - 1);
    std::for_each(first, last, [this](const std::unique_ptr<Node> &row) { forget(*row); });
    rows.erase(first, last);
    endRemoveRows();
}

void ExplorerModel::finish(Node *node)
{
    jobs.remove(node->job);
    node->job = 0;
    emit folderRead(indexOf(node));
}

/// Lets no work that is in hand reach a row that goes, nor the rows below it.
void ExplorerModel::forget(const Node &node)
{
    if (node.job != 0) {
        jobs.remove(node.job);
        updates.remove_if([&node](const Update &update) { return update.node == &node; });
    }
    for (const std::unique_ptr<Node> &child : node.children)
        forget(*child);
}
