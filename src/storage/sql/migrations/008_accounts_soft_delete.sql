-- Account tombstones, kept until configuration sync has pushed the deletion.
ALTER TABLE accounts ADD COLUMN deleted_at TEXT;
