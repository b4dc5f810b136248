#include "host/media/mediajobs.h"

bool MediaJobs::prepare(const FoundItem &item, const QString &extension, MediaPool::Job *job)
{
    if (item.folder)
        return false;
    switch (categoryOfExtension(extension)) {
    case PhotoCategory:
        job->request.kind = MediaRequest::Photo;
        break;
    case VideoCategory:
    case CameraVideoCategory:
        job->request.kind = MediaRequest::Video;
        break;
    default:
        return false;
    }
    job->item = item;
    job->request.extension = extension;
    job->request.fileSize = item.size;
    return true;
}
