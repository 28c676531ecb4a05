-- Remove duplicate events before the unique key is added. Within each group of
-- (calendar_id, uid, recurrence id) the oldest row is kept, so that its synced id, etag and
-- href stay valid; the other rows go with their children. Tombstones count like any row.

DELETE FROM attendees WHERE event_id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS row_number
        FROM events)
    WHERE row_number > 1);

DELETE FROM attachments WHERE event_id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS row_number
        FROM events)
    WHERE row_number > 1);

DELETE FROM reminders WHERE event_id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS row_number
        FROM events)
    WHERE row_number > 1);

DELETE FROM events WHERE id IN (
    SELECT id FROM (
        SELECT id, ROW_NUMBER() OVER (
            PARTITION BY calendar_id, uid, COALESCE(recurrence_id, '')
            ORDER BY created ASC, id ASC) AS row_number
        FROM events)
    WHERE row_number > 1);

-- NULL and empty recurrence ids collide, so a master cannot be stored twice.
CREATE UNIQUE INDEX IF NOT EXISTS idx_events_uid_unique ON events(calendar_id, uid, COALESCE(recurrence_id, ''));
